#pragma once

#include "CleanerCore/Files/URL.hpp"
#include "CleanerCore/LargeFiles/LargeFile.hpp"
#include "CleanerCore/LargeFiles/LargeFileScanEvent.hpp"

#include <cstdint>
#include <functional>
#include <set>
#include <stop_token>
#include <string>
#include <vector>

namespace CleanerCore {

// Finds every file of at least `minimumSize` allocated bytes below the roots, and every package
// (a folder that presents itself as one document) of that size, measured whole. Hidden entries,
// links, special files, ".app" packages, the freedesktop home trash, the folders named in
// `skippedFolders` right below a root, and paths the safety guard protects are passed over.
// Folders are opened relative to their parent's descriptor, never through a link; a root that is
// itself a link gives nothing. Other file systems mounted below a root are walked too.
struct LargeFileScanner {
    // Called from the scanning threads, one call at a time, in a sensible order: the areas are
    // entered in the order of areas(), every find comes after its area's `entered`, and visited
    // counts only grow.
    using Events = std::function<void(const LargeFileScanEvent&)>;
    using Progress = std::function<void(std::int64_t visited)>;

    std::vector<URL> roots;
    std::int64_t minimumSize = 0;
    std::set<std::string> skippedFolders;
    // The home the safety guard protects things in; the first root when empty.
    URL home;

    // The user's home: "Library" and ".Trash" skipped right below it.
    static LargeFileScanner forHome(const URL& home, std::int64_t minimumSize);

    // The folders right below the roots that the walk enters, each root's sorted by name, the
    // roots' lists one after another.
    std::vector<URL> areas() const;

    // The walk. Returns what was found, in the order of the `found` events. Stopping returns what
    // was found so far. Never fails: what can't be read is passed over.
    std::vector<LargeFile> scan(const Events& events, std::stop_token stop = {}) const;
    // The same, reporting only the visited count (every 2000 entries).
    std::vector<LargeFile> scan(const Progress& progress, std::stop_token stop = {}) const;

    // Entries between two `visited` events.
    static constexpr std::int64_t visitedBatch = 2000;

private:
    class Walk;
};

} // namespace CleanerCore
