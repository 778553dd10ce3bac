#pragma once

#include "CleanerCore/DiskTree/DiskNode.hpp"
#include "CleanerCore/Files/UnreadableFolders.hpp"

#include <cstdint>
#include <functional>
#include <optional>
#include <stop_token>
#include <string>

namespace CleanerCore {

// Turns one folder into a tree of DiskNodes that a person can look at: every folder keeps its
// `alwaysKeep` largest children and any child of at least `minimumNodeSize` bytes; the rest is
// summed into one aggregate node, so totals stay exact. Never crosses into another file system;
// packages are leaves. Folders down to depth 5 are listed side by side, deeper subtrees one
// sequential walk each.
struct DiskTreeScanner {
    // (items counted so far, folder just listed); called from any thread, concurrently, at most about
    // ten times a second, and once more at the end with the final count and no folder.
    using Reporting = std::function<void(std::int64_t count, const std::optional<std::string>& folder)>;
    using Progress = std::function<void(std::int64_t count)>;

    std::string root;
    std::int64_t minimumNodeSize = 1000000;
    std::int64_t alwaysKeep = 12;

    // Never fails: what can't be read is empty, and counted in `unreadable` when one is given. A
    // stopped scan returns a well-formed partial tree. Below the root, every folder is opened by name
    // from its parent's open descriptor, never through a link, so a folder swapped for a link while
    // the scan runs can't lead it out of the tree.
    DiskNode::Pointer scan(const Reporting& reporting, std::stop_token stop = {},
                           UnreadableFolders* unreadable = nullptr) const;
    DiskNode::Pointer scan(const Progress& progress, std::stop_token stop = {}) const;

    // Threads that list folders: more than the cores, since a walk mostly waits on the disk.
    static int walkers();
    // `progress` as a Reporting that drops the folder; empty when `progress` is.
    static Reporting countOnly(const Progress& progress);

private:
    struct Child;
    struct Listing;
    class Counter;
    class Walk;
};

} // namespace CleanerCore
