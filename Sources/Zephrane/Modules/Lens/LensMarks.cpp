#include "Modules/Lens/LensMarks.hpp"

#include <algorithm>

using CleanerCore::DiskNode;
using CleanerCore::URL;

namespace LensMarks {

bool covers(const Marks& marks, const URL& url) {
    return std::ranges::any_of(marks, [&](const URL& mark) { return url.isInside(mark); });
}

bool hasInside(const Marks& marks, const URL& url) {
    return std::ranges::any_of(marks, [&](const URL& mark) { return mark.isInside(url); });
}

std::vector<DiskNode::Pointer> nodes(const Marks& marks, const DiskNode::Pointer& tree) {
    std::vector<DiskNode::Pointer> found;
    if (!tree)
        return found;
    for (const URL& mark : marks) {
        const bool enclosed =
            std::ranges::any_of(marks, [&](const URL& other) { return !(other == mark) && mark.isInside(other); });
        if (enclosed)
            continue;
        if (DiskNode::Pointer node = DiskNode::find(tree, mark))
            found.push_back(std::move(node));
    }
    std::ranges::sort(found, [](const DiskNode::Pointer& a, const DiskNode::Pointer& b) { return largestFirst(*a, *b); });
    return found;
}

std::vector<std::string> paths(const Marks& marks) {
    std::vector<std::string> out;
    for (const URL& mark : marks)
        out.push_back(CleanerCore::standardizedPath(mark.path()));
    return out;
}

std::optional<Marks> toggled(const Marks& marks, const URL& url, const DiskNode::Pointer& node) {
    if (url.lastPathComponent() == DiskNode::smallItemsComponent || (node && node->isAggregate()))
        return std::nullopt;
    Marks next = marks;
    if (next.erase(url) > 0)
        return next;
    if (covers(marks, url))
        return std::nullopt; // an enclosing folder already covers it
    std::erase_if(next, [&](const URL& mark) { return mark.isInside(url); });
    next.insert(url);
    return next;
}

Marks afterRemoval(Marks marks, const std::unordered_set<URL>& removed) {
    std::erase_if(marks, [&](const URL& mark) {
        return std::ranges::any_of(removed, [&](const URL& gone) { return mark.isInside(gone); });
    });
    return marks;
}

} // namespace LensMarks
