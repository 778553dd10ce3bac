#pragma once

#include <cstdint>
#include <stop_token>
#include <string>
#include <unordered_map>
#include <vector>

// On-disk sizes of paths: allocated blocks, never logical lengths. A link or a special file measures
// 0 wherever it stands, a regular file its own blocks (a sparse file what it occupies), a folder the
// total of DirectoryWalker; what can't be read measures 0.
namespace CleanerCore::FileSize {

// Sequential.
std::int64_t allocatedSize(const std::string& path);

// The same answer, with the folder's subtrees measured side by side.
std::int64_t parallelAllocatedSize(const std::string& path, std::stop_token stop = {});

// One entry for each distinct path. Paths under "Library/Containers" are measured one after another
// in a single task; every other path gets a task of its own.
std::unordered_map<std::string, std::int64_t> sizes(const std::vector<std::string>& paths,
                                                    std::stop_token stop = {});

// A plain walk through std::filesystem, kept only to hold the fast routes to account. Unlike them
// it counts names starting with "._".
std::int64_t referenceAllocatedSize(const std::string& path);

} // namespace CleanerCore::FileSize
