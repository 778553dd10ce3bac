#include "CleanerCore/Platform/FolderIdentity.hpp"

#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace CleanerCore::Platform {

bool FolderIdentity::of(int fd, FolderIdentity& out) {
    struct statx info;
    if (SystemCalls::current().statx(fd, "", AT_EMPTY_PATH | AT_STATX_DONT_SYNC, STATX_INO, &info) != 0)
        return false;
    out = {makedev(info.stx_dev_major, info.stx_dev_minor), info.stx_ino};
    return true;
}

int reopenParent(int childFd, const FolderIdentity& expected) {
    if (childFd < 0) {
        errno = EBADF;
        return -1;
    }
    FileDescriptor parent(openDirectory(childFd, ".."));
    FolderIdentity found;
    if (!parent || !FolderIdentity::of(parent.get(), found))
        return -1;
    if (!(found == expected)) {
        errno = ESTALE;
        return -1;
    }
    return parent.release();
}

} // namespace CleanerCore::Platform
