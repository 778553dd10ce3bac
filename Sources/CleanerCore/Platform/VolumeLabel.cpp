#include "CleanerCore/Platform/VolumeLabel.hpp"

#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <vector>

namespace CleanerCore::Platform::VolumeLabel {
namespace {

int hexValue(char c) {
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

} // namespace

std::string unescaped(std::string_view name) {
    std::string out;
    for (std::size_t i = 0; i < name.size(); ++i) {
        if (name[i] == '\\' && i + 3 < name.size() && name[i + 1] == 'x' && hexValue(name[i + 2]) >= 0 &&
            hexValue(name[i + 3]) >= 0) {
            out.push_back(static_cast<char>(hexValue(name[i + 2]) * 16 + hexValue(name[i + 3])));
            i += 3;
        } else {
            out.push_back(name[i]);
        }
    }
    return out;
}

std::optional<std::string> of(std::uint64_t device, const std::string& labelsFolder) {
    const FileDescriptor folder(openDirectory(AT_FDCWD, labelsFolder.c_str()));
    if (!folder)
        return std::nullopt;
    std::vector<std::string> names;
    listDirectory(folder.get(), [&](const ListedEntry& entry) { names.emplace_back(entry.name); },
                  {.statFolders = false, .statFiles = false});
    for (const std::string& name : names) {
        struct stat node; // each name is a link to the device node: follow it
        if (SystemCalls::current().fstatat(folder.get(), name.c_str(), &node, 0) == 0 && node.st_rdev != 0 &&
            node.st_rdev == device)
            return unescaped(name);
    }
    return std::nullopt;
}

} // namespace CleanerCore::Platform::VolumeLabel
