#include "CleanerCore/Apps/OrphanGroup.hpp"

namespace CleanerCore {

std::int64_t OrphanGroup::totalSize() const {
    return CleanerCore::totalSize(items);
}

OrphanGroup OrphanGroup::removing(const std::unordered_set<URL>& urls) const {
    OrphanGroup kept{bundleID, {}};
    for (const CleanupItem& item : items)
        if (!urls.contains(item.url))
            kept.items.push_back(item);
    return kept;
}

} // namespace CleanerCore
