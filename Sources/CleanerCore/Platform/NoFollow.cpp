#include "CleanerCore/Platform/NoFollow.hpp"

#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"

#include <fcntl.h>
#include <string>

namespace CleanerCore::Platform {

int openFolderNoFollow(std::string_view path) {
    SystemCalls& calls = SystemCalls::current();
    constexpr int flags = O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    if (!path.starts_with('/')) {
        errno = EINVAL;
        return -1;
    }
    FileDescriptor folder(retryingInterrupted([&] { return calls.openat(AT_FDCWD, "/", flags); }));
    std::size_t start = 1;
    while (folder && start < path.size()) {
        std::size_t end = path.find('/', start);
        if (end == std::string_view::npos)
            end = path.size();
        if (end > start) {
            const std::string component(path.substr(start, end - start));
            const int next =
                retryingInterrupted([&] { return calls.openat(folder.get(), component.c_str(), flags); });
            if (next < 0) {
                const int error = errno;
                folder.reset();
                errno = error;
                return -1;
            }
            folder.reset(next);
        }
        start = end + 1;
    }
    return folder.release();
}

} // namespace CleanerCore::Platform
