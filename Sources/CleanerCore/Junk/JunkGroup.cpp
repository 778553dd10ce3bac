#include "CleanerCore/Junk/JunkGroup.hpp"

namespace CleanerCore {

std::int64_t JunkGroup::totalSize() const {
    return CleanerCore::totalSize(items);
}

JunkGroup JunkGroup::removing(const std::unordered_set<URL>& urls) const {
    JunkGroup left{rule, {}};
    for (const CleanupItem& item : items)
        if (!urls.contains(item.url))
            left.items.push_back(item);
    return left;
}

} // namespace CleanerCore
