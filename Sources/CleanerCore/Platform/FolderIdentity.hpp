#pragma once

#include <cstdint>

namespace CleanerCore::Platform {

// What tells one folder from any other while a walk runs: its device and inode. A walk that gives
// a level's descriptor back for a while checks this when it gets the level again, so that a folder
// moved or swapped meanwhile is never taken for the one it left.
struct FolderIdentity {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;

    bool operator==(const FolderIdentity&) const = default;

    // The identity of the open folder `fd`; absent (false) when it can't be examined.
    static bool of(int fd, FolderIdentity& out);
};

// The folder above the open folder `childFd`, through "..", provided it is still `expected`;
// -1 otherwise (errno ESTALE when another folder stands there now).
int reopenParent(int childFd, const FolderIdentity& expected);

} // namespace CleanerCore::Platform
