#pragma once

#include "CleanerCore/DiskTree/DiskNode.hpp"
#include "CleanerCore/DiskTree/DiskTreeScanner.hpp"
#include "CleanerCore/Files/URL.hpp"

#include <cstdint>
#include <optional>
#include <stop_token>
#include <string>

namespace CleanerCore {

// The plain statement of what DiskTreeScanner must build, on std::filesystem: one node per item,
// the same fold, the same order. It differs where a plain walk can't do better: "._" names are
// kept, the volume is compared as text, only the root's children are walked side by side, sandbox
// containers get no special route, and every listed name is counted before filtering. Nothing in
// the product calls it; tests hold the fast scanner to it.
struct ReferenceDiskTreeScanner {
    using Reporting = DiskTreeScanner::Reporting;
    using Progress = DiskTreeScanner::Progress;

    // What the plain walk knows of one item.
    struct Entry {
        URL url;
        bool isFolder = false;
        bool isPackage = false;
        std::int64_t size = 0;
        std::optional<std::string> volume;
    };

    std::string root;
    std::int64_t minimumNodeSize = 1000000;
    std::int64_t alwaysKeep = 12;

    DiskNode::Pointer scan(const Reporting& reporting, std::stop_token stop = {}) const;
    DiskNode::Pointer scan(const Progress& progress = {}, std::stop_token stop = {}) const;

private:
    class ReferenceCounter;
    DiskNode::Pointer scanFolder(const std::string& path, int depth,
                                 const std::optional<std::string>& rootVolume, ReferenceCounter& counter,
                                 const std::stop_token& stop) const;
    DiskNode::Pointer folderNode(const std::string& path, std::vector<DiskNode::Pointer> children) const;
};

} // namespace CleanerCore
