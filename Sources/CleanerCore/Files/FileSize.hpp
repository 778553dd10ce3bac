#pragma once

#include "CleanerCore/Files/URL.hpp"
#include "CleanerCore/Files/UnreadableFolders.hpp"

#include <cstdint>
#include <stop_token>
#include <unordered_map>
#include <vector>

// On-disk sizes of paths: allocated blocks, never logical lengths. A link or a special file measures
// 0 wherever it stands, a regular file its own blocks (a sparse file what it occupies), a folder the
// total of DirectoryWalker; what can't be read measures 0. A link is a link however the path is
// written: "link/" and "link/." measure the link, not what it points to.
namespace CleanerCore::FileSize {

// One path measured, with what kept the answer from being whole.
struct Measurement {
    std::int64_t bytes = 0;
    // errno when the path itself could not be examined or, being a folder, opened; 0 otherwise.
    int error = 0;
    // Folders below it that could not be opened or read to the end.
    std::int64_t unreadableFolders = 0;

    bool operator==(const Measurement&) const = default;
};

// As parallelAllocatedSize, telling what could not be read.
Measurement measure(const URL& url, std::stop_token stop = {});

// Sequential.
std::int64_t allocatedSize(const URL& url);

// The same answer, with the folder's subtrees measured side by side.
std::int64_t parallelAllocatedSize(const URL& url, std::stop_token stop = {});

// One entry for each distinct URL. Those under "Library/Containers" are measured one after another
// in a single task; every other one gets a task of its own.
std::unordered_map<URL, std::int64_t> sizes(const std::vector<URL>& urls, std::stop_token stop = {});

// A plain walk through std::filesystem, kept only to hold the fast routes to account. Unlike them
// it counts names starting with "._".
std::int64_t referenceAllocatedSize(const URL& url);

} // namespace CleanerCore::FileSize
