#pragma once

#include <optional>
#include <string>
#include <vector>

struct statx;

namespace CleanerCore::Platform {

// Tells whether something is mounted on an entry, links never followed. The kernel says so itself
// (STATX_ATTR_MOUNT_ROOT, a bind mount of the same file system included); where it does not report
// that attribute, the mount table decides by the entry's path, read once per object.
// Holds that table: use one object for one run of work on one thread.
class MountRoots {
public:
    // 1 when `name` in the open folder `folderFd` is the root of a mount, 0 when not, -1 with errno
    // when it can't be examined. An empty `name` asks about `folderFd` itself. `facts`, when given,
    // receives what the kernel said about the entry (type, inode, device).
    int test(int folderFd, const char* name, struct ::statx* facts = nullptr);

private:
    bool inTable(int folderFd, const char* name);

    std::optional<std::vector<std::string>> table;
};

} // namespace CleanerCore::Platform
