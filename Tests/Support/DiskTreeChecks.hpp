#pragma once

#include "CleanerCore/DiskTree/DiskNode.hpp"

#include <fmt/format.h>

#include <string>

namespace DiskTreeChecks {

using CleanerCore::DiskNode;

// The first difference between two trees, or "" when they are equal field by field.
inline std::string difference(const DiskNode& a, const DiskNode& b) {
    if (a.path() != b.path() || a.name() != b.name() || a.size() != b.size() ||
        a.itemCount() != b.itemCount() || a.isDirectory() != b.isDirectory() ||
        a.isAggregate() != b.isAggregate() || a.children().size() != b.children().size())
        return fmt::format(
            "{} '{}' size {} items {} dir {} agg {} children {}  vs  {} '{}' size {} items {} dir {} "
            "agg {} children {}",
            a.path(), a.name(), a.size(), a.itemCount(), a.isDirectory(), a.isAggregate(),
            a.children().size(), b.path(), b.name(), b.size(), b.itemCount(), b.isDirectory(),
            b.isAggregate(), b.children().size());
    for (std::size_t i = 0; i < a.children().size(); ++i)
        if (std::string below = difference(*a.children()[i], *b.children()[i]); !below.empty())
            return below;
    return {};
}

// "" when every folder sums its children, orders them, and has at most one aggregate, last.
inline std::string malformation(const DiskNode& node) {
    if (!node.isDirectory())
        return node.children().empty() ? "" : node.path() + " is a leaf with children";
    std::int64_t size = 0, count = 0;
    const auto children = node.children();
    for (std::size_t i = 0; i < children.size(); ++i) {
        size += children[i]->size();
        count += children[i]->itemCount();
        if (children[i]->isAggregate() && i + 1 != children.size())
            return node.path() + " has an aggregate before the end";
        if (i > 0 && !children[i]->isAggregate() && CleanerCore::largestFirst(*children[i], *children[i - 1]))
            return node.path() + " is out of order at " + std::string(children[i]->name());
        if (std::string below = malformation(*children[i]); !below.empty())
            return below;
    }
    if (size != node.size() || count != node.itemCount())
        return fmt::format("{} holds {} bytes in {} items but says {} in {}", node.path(), size, count,
                           node.size(), node.itemCount());
    return {};
}

// Hand-made nodes. A folder sums its children, kept in the order given.
inline DiskNode::Pointer leaf(const std::string& path, std::int64_t size) {
    return std::make_shared<const DiskNode>(CleanerCore::URL::file(path), std::nullopt, size, false, 1, false,
                                            std::vector<DiskNode::Pointer>{});
}

inline DiskNode::Pointer folder(const std::string& path, std::vector<DiskNode::Pointer> children) {
    std::int64_t size = 0, count = 0;
    for (const auto& child : children) {
        size += child->size();
        count += child->itemCount();
    }
    return std::make_shared<const DiskNode>(CleanerCore::URL::file(path), std::nullopt, size, true, count,
                                            false, std::move(children));
}

inline DiskNode::Pointer aggregate(const std::string& folderPath, std::int64_t size, std::int64_t count = 3) {
    return std::make_shared<const DiskNode>(CleanerCore::URL::file(folderPath + "/.zephrane-small-items"),
                                            std::to_string(count) + " small items", size, false, count, true,
                                            std::vector<DiskNode::Pointer>{});
}

} // namespace DiskTreeChecks
