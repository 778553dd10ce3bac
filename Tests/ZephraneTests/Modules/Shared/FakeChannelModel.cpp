#include "Modules/Shared/FakeChannelModel.hpp"

void FakeChannelModel::Gate::open() {
    {
        std::lock_guard lock(mutex);
        isOpen = true;
    }
    changed.notify_all();
}

void FakeChannelModel::Gate::wait() {
    std::unique_lock lock(mutex);
    changed.wait(lock, [this] { return isOpen; });
}

ScanPlan FakeChannelModel::scanPlan() {
    auto found = std::make_shared<std::vector<std::vector<CleanupCategory>>>(plan.size());
    ScanPlan scan;
    for (std::size_t index = 0; index < plan.size(); ++index) {
        const PlannedUnit& planned = plan[index];
        std::vector<ScanUnit::Tile> tiles;
        for (const auto& [id, bytes] : planned.tiles)
            tiles.push_back({id, QStringLiteral("Tile %1").arg(id)});
        scan.units.push_back({planned.id, planned.title, QStringLiteral("~/fake/%1").arg(planned.id),
                         [planned = planned.found, tiles = planned.tiles, gate = gate, found, index](std::stop_token,
                                                                                            ScanFeed& feed) {
                             if (gate)
                                 gate->wait();
                             for (std::size_t tile = 0; tile < tiles.size(); ++tile) {
                                 feed.enter(static_cast<int>(tile));
                                 feed.add(static_cast<int>(tile), tiles[tile].second);
                             }
                             ScanUnitResult result;
                             for (const CleanupCategory& category : planned) {
                                 result.itemCount += static_cast<int>(category.items.size());
                                 result.bytes += CleanerCore::totalSize(category.items);
                             }
                             feed.found(result.itemCount);
                             (*found)[index] = planned;
                             return result;
                         }, std::move(tiles)});
    }
    scan.adopt = [this, found] {
        results.clear();
        for (std::vector<CleanupCategory>& unit : *found)
            for (CleanupCategory& category : unit)
                results.push_back(std::move(category));
    };
    return scan;
}

std::vector<CleanerCore::CleanupItem> FakeChannelModel::removedWith(const CleanerCore::CleanupItem& item) const {
    const auto found = companions.find(item.url.path());
    return found == companions.end() ? std::vector<CleanerCore::CleanupItem>{} : found->second;
}

void FakeChannelModel::dropRemoved(const std::unordered_set<CleanerCore::URL>& removed) {
    for (CleanupCategory& category : results)
        std::erase_if(category.items,
                      [&](const CleanerCore::CleanupItem& item) { return removed.contains(item.url); });
    std::erase_if(results, [](const CleanupCategory& category) { return category.items.empty(); });
}

CleanupCategory fakeCategory(const QString& id, const std::string& folder,
                             std::initializer_list<const char*> names, std::int64_t size,
                             bool selectedByDefault) {
    CleanupCategory category{id, QStringLiteral("Category %1").arg(id), {}};
    for (const char* name : names)
        category.items.push_back(
            {CleanerCore::URL::file(folder + "/" + name), size, std::nullopt, selectedByDefault});
    return category;
}
