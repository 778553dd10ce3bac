#include "CleanerCore/Platform/AppImages.hpp"

#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "CleanerCore/Platform/NoFollow.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"

#include <array>
#include <fcntl.h>

namespace CleanerCore::Platform {

bool hasAppImageMagic(std::string_view bytes) {
    return bytes.size() >= 11 &&
           bytes.substr(0, 4) == "\x7f"
                                 "ELF" &&
           bytes.substr(8, 2) == "AI" && (bytes[10] == '\x01' || bytes[10] == '\x02');
}

std::vector<std::string> appImagesIn(const std::string& folder) {
    std::vector<std::string> names;
    const FileDescriptor fd(openDirectory(AT_FDCWD, folder.c_str()));
    if (!fd)
        return {};
    listDirectory(fd.get(),
                  [&names](const ListedEntry& entry) {
                      if (entry.kind == EntryKind::file)
                          names.emplace_back(entry.name);
                  },
                  {.statFolders = false, .statFiles = false});

    SystemCalls& calls = SystemCalls::current();
    std::vector<std::string> found;
    for (const std::string& name : names) {
        const FileDescriptor file(
            calls.openat(fd.get(), name.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
        if (!file)
            continue;
        std::array<char, 16> head{};
        const ssize_t got =
            retryingInterrupted([&] { return calls.read(file.get(), head.data(), head.size()); });
        if (got > 0 && hasAppImageMagic(std::string_view(head.data(), static_cast<std::size_t>(got))))
            found.push_back(folder + "/" + name);
    }
    return found;
}

} // namespace CleanerCore::Platform
