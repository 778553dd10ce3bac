#include "CleanerCore/Platform/MountRoots.hpp"

#include "CleanerCore/Platform/MountTable.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"

#include <algorithm>
#include <climits>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>

namespace CleanerCore::Platform {

int MountRoots::test(int folderFd, const char* name, struct ::statx* facts) {
    struct ::statx local;
    struct ::statx& info = facts ? *facts : local;
    const int flags = AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT | (name[0] == '\0' ? AT_EMPTY_PATH : 0);
    SystemCalls& calls = SystemCalls::current();
    int result;
    do
        result = calls.statx(folderFd, name, flags, STATX_TYPE | STATX_INO, &info);
    while (result != 0 && errno == EINTR);
    if (result != 0)
        return -1;
    if (info.stx_attributes_mask & STATX_ATTR_MOUNT_ROOT)
        return (info.stx_attributes & STATX_ATTR_MOUNT_ROOT) ? 1 : 0;
    return inTable(folderFd, name) ? 1 : 0;
}

// An older kernel: the entry's path, found through its folder's descriptor, against the table.
bool MountRoots::inTable(int folderFd, const char* name) {
    std::string path;
    if (folderFd == AT_FDCWD) {
        path = name;
    } else {
        char buffer[PATH_MAX];
        const std::string link = "/proc/self/fd/" + std::to_string(folderFd);
        const ssize_t length = SystemCalls::current().readlinkat(AT_FDCWD, link.c_str(), buffer, sizeof buffer);
        if (length <= 0 || length == static_cast<ssize_t>(sizeof buffer) || buffer[0] != '/')
            return false;
        path.assign(buffer, static_cast<std::size_t>(length));
        if (name[0] != '\0')
            path += path == "/" ? std::string(name) : "/" + std::string(name);
    }
    if (!table) {
        table.emplace();
        for (const MountPoint& mount : MountTable::current())
            table->push_back(mount.path);
    }
    return std::find(table->begin(), table->end(), path) != table->end();
}

} // namespace CleanerCore::Platform
