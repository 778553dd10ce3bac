#include "CleanerCore/Files/DirectoryWalker.hpp"

#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "CleanerCore/Platform/FolderIdentity.hpp"
#include "CleanerCore/Platform/SharedFolder.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"

#include <tbb/task_group.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <mutex>
#include <sys/stat.h>
#include <unordered_map>
#include <vector>

namespace CleanerCore::DirectoryWalker {
namespace {

using Platform::EntryKind;
using Platform::ListedEntry;

constexpr int fanOutDepth = 8;

// Levels of a sequential descent that keep their descriptor open; deeper folders are closed while
// their subfolders are walked and reopened through ".." afterwards.
constexpr std::size_t heldLevels = 48;

bool isAppleDouble(std::string_view name) {
    return name.starts_with("._");
}

// Lists one folder: adds its files to `total` and appends its subfolders' names, each followed by
// a NUL, to `names`. A listing cut short counts the folder as unreadable.
void listFolder(int fd, std::int64_t& total, std::string& names, UnreadableFolders* unreadable) {
    const bool whole = Platform::listDirectory(fd,
                                               [&](const ListedEntry& entry) {
                                                   if (isAppleDouble(entry.name))
                                                       return;
                                                   if (entry.kind == EntryKind::file) {
                                                       total += entry.allocatedSize;
                                                   } else if (entry.kind == EntryKind::directory) {
                                                       names.append(entry.name);
                                                       names.push_back('\0');
                                                   }
                                               },
                                               {.statFolders = false});
    if (!whole && unreadable)
        unreadable->add();
}

// One level of a sequential descent: the names of its subfolders sit in [next, end) of the shared
// name store.
struct Level {
    int fd = -1; // -1 while parked
    std::size_t begin = 0, next = 0, end = 0;
    Platform::FolderIdentity identity; // known once parked, to recognise the folder when it is reopened
};

} // namespace

std::int64_t allocatedSize(int directoryFd, UnreadableFolders* unreadable) {
    std::int64_t total = 0;
    std::string names;
    std::vector<Level> levels;
    listFolder(directoryFd, total, names, unreadable);
    levels.push_back({directoryFd, 0, 0, names.size(), {}});

    // The top of the stack is always open; levels below it may be parked, and are brought back
    // through their child's ".." when the walk climbs to them again.
    while (!levels.empty()) {
        Level& top = levels.back();
        if (top.next == top.end) {
            const int finished = top.fd;
            const bool ours = levels.size() > 1;
            names.resize(top.begin);
            levels.pop_back();
            if (!levels.empty() && levels.back().fd < 0) {
                Level& parent = levels.back();
                parent.fd = Platform::reopenParent(finished, parent.identity);
                if (parent.fd < 0) { // moved or gone meanwhile: its other subfolders are lost
                    if (parent.next != parent.end && unreadable)
                        unreadable->add();
                    parent.next = parent.end;
                }
            }
            if (ours && finished >= 0)
                Platform::SystemCalls::current().close(finished);
            continue;
        }
        const char* name = names.data() + top.next;
        top.next += std::strlen(name) + 1;
        const int child = Platform::openDirectory(top.fd, name);
        if (child < 0) {
            UnreadableFolders::failed(unreadable, errno);
            continue;
        }
        if (levels.size() > heldLevels && Platform::FolderIdentity::of(top.fd, top.identity)) {
            Platform::SystemCalls::current().close(top.fd);
            top.fd = -1;
        }
        const std::size_t begin = names.size();
        listFolder(child, total, names, unreadable);
        levels.push_back({child, begin, begin, names.size(), {}});
    }
    return total;
}

bool isInContainers(std::string_view path) {
    if (path.ends_with('/'))
        path.remove_suffix(1);
    return path.ends_with("/Library/Containers") ||
           path.find("/Library/Containers/") != std::string_view::npos;
}

std::int64_t allocatedSize(const std::string& path, bool fanOut, int depth, std::stop_token stop,
                           UnreadableFolders* unreadable) {
    Platform::FileDescriptor fd(Platform::openDirectory(AT_FDCWD, path.c_str()));
    if (!fd) {
        UnreadableFolders::failed(unreadable, errno);
        return 0;
    }
    return allocatedSize(std::move(fd), path, fanOut, depth, std::move(stop), unreadable);
}

std::int64_t allocatedSize(Platform::FileDescriptor folder, std::string_view path, bool fanOut, int depth,
                           std::stop_token stop, UnreadableFolders* unreadable) {
    if (!fanOut || depth >= fanOutDepth || isInContainers(path) || stop.stop_requested())
        return allocatedSize(folder.get(), unreadable);

    std::int64_t own = 0;
    std::string names;
    listFolder(folder.get(), own, names, unreadable);
    const std::size_t count = static_cast<std::size_t>(std::count(names.begin(), names.end(), '\0'));
    if (count == 0)
        return own;

    std::string_view parent = path;
    if (parent.size() > 1 && parent.ends_with('/'))
        parent.remove_suffix(1);
    Platform::SharedFolder shared(std::move(folder), count);
    std::atomic<std::int64_t> children{0};
    tbb::task_group group;
    for (std::size_t at = 0; at < names.size();) {
        const char* name = names.data() + at;
        const std::size_t length = std::strlen(name);
        at += length + 1;
        group.run([&children, &shared, name, length, parent, depth, stop, unreadable] {
            Platform::FileDescriptor child(Platform::openDirectory(shared.fd(), name));
            const int error = errno;
            shared.opened();
            if (!child) {
                UnreadableFolders::failed(unreadable, error);
                return;
            }
            // The path only decides the route (containers are walked sequentially); it is never opened.
            std::string below;
            below.reserve(parent.size() + 1 + length);
            below.append(parent);
            if (!parent.ends_with('/'))
                below.push_back('/');
            below.append(name, length);
            children.fetch_add(allocatedSize(std::move(child), below, true, depth + 1, stop, unreadable),
                               std::memory_order_relaxed);
        });
    }
    group.wait();
    return own + children.load(std::memory_order_relaxed);
}

namespace {

// Extensions of the folder types that present themselves as one document or program.
constexpr std::array<std::string_view, 40> packageTypes{
    "app",           "appex",       "bundle",        "component",    "dsym",
    "fcpbundle",     "framework",   "imovielibrary", "kext",         "key",
    "logicx",        "mdimporter",  "mpkg",          "numbers",      "pages",
    "photoslibrary", "playground",  "plugin",        "prefpane",     "qlgenerator",
    "rtfd",          "saver",       "scptd",         "sparsebundle", "systemextension",
    "theater",       "vst",         "vst3",          "wdgt",         "xcarchive",
    "xcodeproj",     "xcworkspace", "xpc",           "band",         "docset",
    "driver",        "ideplugin",   "musiclibrary",  "photolibrary", "safariextension"};

// The one lock of the engine: the table is shared by every walk and only ever grows.
std::mutex packageExtensionsLock;
std::unordered_map<std::string, bool> packageExtensions;

bool isPackageExtension(std::string_view extension) {
    std::string key(extension);
    std::transform(key.begin(), key.end(), key.begin(),
                   [](unsigned char c) { return static_cast<char>(c >= 'A' && c <= 'Z' ? c + 32 : c); });
    const std::lock_guard lock(packageExtensionsLock);
    const auto known = packageExtensions.find(key);
    if (known != packageExtensions.end())
        return known->second;
    const bool package = std::find(packageTypes.begin(), packageTypes.end(), key) != packageTypes.end();
    packageExtensions.emplace(std::move(key), package);
    return package;
}

} // namespace

bool hasPackageExtension(std::string_view name) {
    const std::size_t dot = name.rfind('.');
    if (dot == std::string_view::npos || dot == 0 || dot + 1 == name.size())
        return false;
    return isPackageExtension(name.substr(dot + 1));
}

bool isPackage(std::string_view folderNamed, bool hasBundleBit, const URL& at) {
    if (hasBundleBit)
        return true;
    if (!hasPackageExtension(folderNamed))
        return false;
    struct stat info {};
    return Platform::SystemCalls::current().fstatat(AT_FDCWD, at.path().c_str(), &info,
                                                    AT_SYMLINK_NOFOLLOW) == 0 &&
           S_ISDIR(info.st_mode);
}

} // namespace CleanerCore::DirectoryWalker
