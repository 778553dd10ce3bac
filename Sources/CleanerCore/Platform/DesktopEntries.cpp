#include "CleanerCore/Platform/DesktopEntries.hpp"

#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"

#include <cstdlib>
#include <fcntl.h>
#include <string_view>

namespace CleanerCore::Platform {

namespace {

constexpr std::string_view suffix = ".desktop";
constexpr int maximumDepth = 3; // freedesktop allows subfolders; nobody nests deeper

void collect(int parentFd, const char* name, const std::string& prefix, int depth,
             std::vector<std::string>& ids) {
    const FileDescriptor fd(openDirectory(parentFd, name));
    if (!fd)
        return;
    std::vector<std::string> folders;
    listDirectory(fd.get(),
                  [&](const ListedEntry& entry) {
                      if (entry.kind == EntryKind::directory)
                          folders.emplace_back(entry.name);
                      else if (entry.name.size() > suffix.size() && entry.name.ends_with(suffix))
                          ids.push_back(prefix +
                                        std::string(entry.name.substr(0, entry.name.size() - suffix.size())));
                  },
                  {.statFolders = false, .statFiles = false});
    if (depth >= maximumDepth)
        return;
    for (const std::string& folder : folders)
        collect(fd.get(), folder.c_str(), prefix + folder + "-", depth + 1, ids);
}

} // namespace

std::vector<std::string> desktopEntryFolders(const std::string& home) {
    std::vector<std::string> folders;
    const char* dataHome = std::getenv("XDG_DATA_HOME");
    folders.push_back((dataHome && dataHome[0] == '/' ? std::string(dataHome) : home + "/.local/share") +
                      "/applications");
    const char* dataDirs = std::getenv("XDG_DATA_DIRS");
    std::string_view dirs = dataDirs && *dataDirs ? dataDirs : "/usr/local/share:/usr/share";
    while (!dirs.empty()) {
        const std::size_t colon = dirs.find(':');
        const std::string_view dir = dirs.substr(0, colon);
        dirs = colon == std::string_view::npos ? std::string_view{} : dirs.substr(colon + 1);
        if (dir.starts_with('/'))
            folders.push_back(std::string(dir) + "/applications");
    }
    return folders;
}

std::vector<std::string> desktopEntryIDs(const std::vector<std::string>& folders) {
    std::vector<std::string> ids;
    for (const std::string& folder : folders)
        collect(AT_FDCWD, folder.c_str(), "", 0, ids);
    return ids;
}

} // namespace CleanerCore::Platform
