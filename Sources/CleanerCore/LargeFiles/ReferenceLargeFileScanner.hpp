#pragma once

#include "CleanerCore/LargeFiles/LargeFile.hpp"
#include "CleanerCore/LargeFiles/LargeFileScanner.hpp"

#include <cstdint>
#include <vector>

// The plain statement of what LargeFileScanner finds, on std::filesystem, one entry after another
// with a stat each. Nothing in the product calls it; tests hold the fast walk to it. It differs in
// order only (a plain depth-first walk) and in counting "._" names inside packages.
namespace CleanerCore::ReferenceLargeFileScanner {

struct Result {
    std::vector<LargeFile> files;
    std::int64_t visited = 0; // every entry the walk looked at
};

Result scan(const LargeFileScanner& scanner);

} // namespace CleanerCore::ReferenceLargeFileScanner
