#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <type_traits>
#include <utility>

namespace CleanerCore::Platform {

enum class EntryKind : std::uint8_t { file, directory, symlink, other };

// One entry of a folder as the bulk listing reports it. Fields that were not looked up (see
// ListingOptions) read 0 / false.
struct ListedEntry {
    // Valid during the callback only; NUL-terminated, so name.data() can go to openat().
    std::string_view name;
    EntryKind kind = EntryKind::other;
    std::uint64_t device = 0; // makedev(major, minor) of the file system holding the entry
    std::uint64_t inode = 0;
    std::int64_t allocatedSize = 0; // allocated blocks in bytes; 0 for links and special files
    std::uint32_t linkCount = 0;
    bool isMountRoot = false;

    bool operator==(const ListedEntry&) const = default;
};

struct ListingOptions {
    // Folders cost one statx each for their device, inode, link count and mount status. A walk that
    // only sums file sizes turns this off and gets folders from the directory entry's type alone
    // (device 0, size 0, not a mount root, inode from the entry).
    bool statFolders = true;
    // Likewise for regular files: without it they come from the entry's type alone (size 0).
    bool statFiles = true;
};

namespace BulkListingDetail {
using Visit = void (*)(void* context, const ListedEntry& entry);
bool list(int directoryFd, void* context, Visit visit, ListingOptions options);
} // namespace BulkListingDetail

// Lists the open folder `directoryFd` (not closed) and calls `visit(const ListedEntry&)` for each
// entry except "." and "..". Links and special files are reported without a statx (size 0,
// device 0); an entry whose statx fails (gone meanwhile) is skipped. One 128 KiB buffer per
// thread serves every listing that is not nested inside another's callback; nothing is allocated
// per entry. Returns false when the folder could not be read to its end (entries seen before the
// failure have been visited).
template <typename Visitor>
bool listDirectory(int directoryFd, Visitor&& visit, ListingOptions options = {}) {
    using Plain = std::remove_reference_t<Visitor>;
    return BulkListingDetail::list(
        directoryFd, const_cast<void*>(static_cast<const void*>(std::addressof(visit))),
        [](void* context, const ListedEntry& entry) { (*static_cast<Plain*>(context))(entry); }, options);
}

// Opens a folder read-only, never through a link: a link to a folder fails with ELOOP or ENOTDIR.
// Below an open folder `parentFd`, `name` must be one component (a name holding "/" fails with
// EINVAL): walks go down one level at a time, so a folder swapped for a link on the way can't
// lead them elsewhere. With AT_FDCWD, `name` is the path at the top of a walk; trailing "/" and
// "." are dropped first, since "link/" would make the kernel follow the link. Returns the
// descriptor, or -1 with errno set.
int openDirectory(int parentFd, const char* name);

// `path` less any trailing "/" and "/." ("/" stays "/"): the spelling under which the last
// component is the item itself, not what a link there points to.
std::string_view withoutTrailingSeparators(std::string_view path);

} // namespace CleanerCore::Platform
