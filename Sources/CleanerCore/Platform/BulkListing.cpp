#include "CleanerCore/Platform/BulkListing.hpp"

#include "CleanerCore/Platform/SystemCalls.hpp"

#include <cerrno>
#include <cstddef>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <string>
#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace CleanerCore::Platform {
namespace {

constexpr std::size_t bufferSize = 128 * 1024;
constexpr int statFlags = AT_SYMLINK_NOFOLLOW | AT_STATX_DONT_SYNC | AT_NO_AUTOMOUNT;
constexpr unsigned statMask = STATX_TYPE | STATX_BLOCKS | STATX_INO | STATX_NLINK;

// The kernel's linux_dirent64 record: inode (u64), offset (i64), length (u16), type (u8), name.
constexpr std::size_t inodeAt = 0, lengthAt = 16, typeAt = 18, nameAt = 19;

template <typename T> T field(const std::byte* record, std::size_t at) {
    T value;
    std::memcpy(&value, record + at, sizeof value);
    return value;
}

// The per-thread buffer, lent to one listing at a time. A listing started from inside another's
// callback finds it taken and uses a buffer of its own.
struct BufferLoan {
    BufferLoan() {
        thread_local std::unique_ptr<std::byte[]> shared;
        thread_local bool taken = false;
        if (!taken) {
            if (!shared)
                shared.reset(new std::byte[bufferSize]);
            data = shared.get();
            flag = &taken;
            taken = true;
        } else {
            own.reset(new std::byte[bufferSize]);
            data = own.get();
        }
    }
    ~BufferLoan() {
        if (flag)
            *flag = false;
    }
    BufferLoan(const BufferLoan&) = delete;
    BufferLoan& operator=(const BufferLoan&) = delete;

    std::byte* data = nullptr;
    bool* flag = nullptr;
    std::unique_ptr<std::byte[]> own;
};

EntryKind kindOfMode(unsigned mode) {
    if (S_ISREG(mode))
        return EntryKind::file;
    if (S_ISDIR(mode))
        return EntryKind::directory;
    if (S_ISLNK(mode))
        return EntryKind::symlink;
    return EntryKind::other;
}

bool isDotOrDotDot(const char* name) {
    return name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'));
}

// Fills the looked-up fields of `entry`; false when the entry can't be examined (and is skipped).
bool examine(SystemCalls& calls, int directoryFd, ListedEntry& entry) {
    struct statx info;
    int result;
    do
        result = calls.statx(directoryFd, entry.name.data(), statFlags, statMask, &info);
    while (result != 0 && errno == EINTR);
    if (result != 0)
        return false;
    entry.kind = (info.stx_mask & STATX_TYPE) ? kindOfMode(info.stx_mode) : EntryKind::other;
    entry.device = makedev(info.stx_dev_major, info.stx_dev_minor);
    if (info.stx_mask & STATX_INO)
        entry.inode = info.stx_ino;
    entry.linkCount = (info.stx_mask & STATX_NLINK) ? info.stx_nlink : 0;
    const bool sized = (info.stx_mask & STATX_BLOCKS) &&
                       (entry.kind == EntryKind::file || entry.kind == EntryKind::directory);
    entry.allocatedSize = sized ? static_cast<std::int64_t>(info.stx_blocks) * 512 : 0;
    entry.isMountRoot =
        (info.stx_attributes_mask & STATX_ATTR_MOUNT_ROOT) && (info.stx_attributes & STATX_ATTR_MOUNT_ROOT);
    return true;
}

} // namespace

namespace BulkListingDetail {

bool list(int directoryFd, void* context, Visit visit, ListingOptions options) {
    SystemCalls& calls = SystemCalls::current();
    BufferLoan buffer;
    for (;;) {
        const long filled = calls.getdents64(directoryFd, buffer.data, bufferSize);
        if (filled == 0)
            return true;
        if (filled < 0) {
            if (errno == EINTR)
                continue;
            return false;
        }
        for (long offset = 0; offset < filled;) {
            const std::byte* record = buffer.data + offset;
            offset += field<std::uint16_t>(record, lengthAt);
            const char* name = reinterpret_cast<const char*>(record + nameAt);
            if (isDotOrDotDot(name))
                continue;
            ListedEntry entry;
            entry.name = std::string_view(name);
            entry.inode = field<std::uint64_t>(record, inodeAt);
            bool needsStat = true;
            switch (field<std::uint8_t>(record, typeAt)) {
            case DT_REG:
                entry.kind = EntryKind::file;
                needsStat = options.statFiles;
                break;
            case DT_DIR:
                entry.kind = EntryKind::directory;
                needsStat = options.statFolders;
                break;
            case DT_LNK:
                entry.kind = EntryKind::symlink;
                needsStat = false;
                break;
            case DT_UNKNOWN:
                break;
            default:
                needsStat = false;
                break;
            }
            if (needsStat && !examine(calls, directoryFd, entry))
                continue;
            visit(context, entry);
        }
    }
}

} // namespace BulkListingDetail

std::string_view withoutTrailingSeparators(std::string_view path) {
    for (;;) {
        if (path.size() > 1 && path.ends_with('/'))
            path.remove_suffix(1);
        else if (path == ".")
            return path;
        else if (path.ends_with("/.") && path.size() > 2)
            path.remove_suffix(2);
        else if (path == "/.")
            return "/";
        else
            return path;
    }
}

int openDirectory(int parentFd, const char* name) {
    SystemCalls& calls = SystemCalls::current();
    std::string top;
    if (parentFd == AT_FDCWD) {
        top = withoutTrailingSeparators(name);
        name = top.c_str();
    } else if (std::strchr(name, '/') != nullptr) {
        errno = EINVAL;
        return -1;
    }
    int fd;
    do
        fd = calls.openat(parentFd, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    while (fd < 0 && errno == EINTR);
    return fd;
}

} // namespace CleanerCore::Platform
