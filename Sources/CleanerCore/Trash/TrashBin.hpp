#pragma once

#include "CleanerCore/Files/URL.hpp"
#include "CleanerCore/Platform/MountTable.hpp"
#include "CleanerCore/Removal/RemovalReport.hpp"
#include "CleanerCore/Trash/TrashEntry.hpp"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace CleanerCore {

// One freedesktop trash folder: its items in files/, their info files in info/. Reading answers
// "no access" (nothing) apart from "empty" (an empty list): a missing folder is empty, only a
// listing that fails is no access. All calls block; run them off the interface thread.
struct TrashBin {
    URL url;  // the trash folder, holding files/ and info/
    URL home; // the user's home, given to the removal guard

    // The home trash: $XDG_DATA_HOME/Trash.
    explicit TrashBin(URL homeFolder);
    TrashBin(URL folder, URL homeFolder) : url(std::move(folder)), home(std::move(homeFolder)) {}

    // The folder the items are in, the one to watch for changes.
    URL filesURL() const { return url.appending("files"); }

    // The items, or nothing for no access. The bookkeeping name ".DS_Store" is left out.
    std::optional<std::vector<URL>> items() const;
    // The items with their sizes and dates, larger first, or nothing for no access.
    std::optional<std::vector<TrashEntry>> entries() const;
    // The bytes of all items, or nothing for no access.
    std::optional<std::int64_t> size() const;

    // Removes every item for good through Cleaner, then its info file; info files without an item
    // go too, and the folder-size cache forgets what is gone. Nothing goes to a second trash. What
    // resists stays, listed in the report's failures; no access gives an empty report.
    RemovalReport empty() const;

    // The volume this bin lies on: the folder holding ".Trash-UID", the one above ".Trash/UID", or
    // for any other bin the mount point under which it lies.
    URL volumeURL() const;
    // What people call that volume: its label, else the last component of its folder.
    std::string volumeName() const;

    // The bins of the volumes below `volumesRoot` (fixtures): for each entry that is no link, its
    // ".Trash/UID" (when ".Trash" is a sticky folder) and ".Trash-UID", where they are folders.
    // Sorted by path; a root that can't be listed gives none.
    static std::vector<TrashBin> otherVolumes(const URL& volumesRoot, uid_t uid);
    // The same over the mount points of `mounts` (pseudo and automounted file systems left out),
    // each folder once however often it is mounted.
    static std::vector<TrashBin> otherVolumes(std::span<const Platform::MountPoint> mounts, uid_t uid);

    bool operator==(const TrashBin&) const = default;
};

} // namespace CleanerCore
