#include "CleanerCore/Platform/SmallFile.hpp"

#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"

#include <array>
#include <cerrno>
#include <fcntl.h>

namespace CleanerCore::Platform {

std::optional<std::string> readSmallFile(const std::string& path, std::size_t limit) {
    SystemCalls& calls = SystemCalls::current();
    const FileDescriptor fd(calls.openat(AT_FDCWD, path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW));
    if (!fd)
        return std::nullopt;
    std::string content;
    std::array<char, 4096> chunk{};
    for (;;) {
        const ssize_t got = calls.read(fd.get(), chunk.data(), chunk.size());
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return std::nullopt;
        if (got == 0 || content.size() >= limit)
            return content;
        content.append(chunk.data(), static_cast<std::size_t>(got));
    }
}

} // namespace CleanerCore::Platform
