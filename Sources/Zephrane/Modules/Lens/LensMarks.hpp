#pragma once

#include "CleanerCore/DiskTree/DiskNode.hpp"
#include "CleanerCore/Files/URL.hpp"

#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

// The marks of the disk map, over the channel's selection: a mark on a folder covers all that is
// inside it, so marks never nest.
namespace LensMarks {

using Marks = std::unordered_set<CleanerCore::URL>;

// Whether `url` or a folder holding it is marked.
bool covers(const Marks& marks, const CleanerCore::URL& url);
// Whether `url` or something inside it is marked.
bool hasInside(const Marks& marks, const CleanerCore::URL& url);
// The marked nodes of `tree`, largest first.
std::vector<CleanerCore::DiskNode::Pointer> nodes(const Marks& marks, const CleanerCore::DiskNode::Pointer& tree);
// The marks as standardized paths, for painting.
std::vector<std::string> paths(const Marks& marks);
// The marks after `url` is toggled: a mark goes, or `url` replaces the marks inside it. Nothing
// when `url` cannot be marked on its own (a folder above it is marked, or it is a sum of small items).
std::optional<Marks> toggled(const Marks& marks, const CleanerCore::URL& url,
                             const CleanerCore::DiskNode::Pointer& node);
// The marks that survive a removal of `removed`.
Marks afterRemoval(Marks marks, const std::unordered_set<CleanerCore::URL>& removed);

} // namespace LensMarks
