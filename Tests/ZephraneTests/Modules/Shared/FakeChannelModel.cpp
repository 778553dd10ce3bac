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

std::vector<ScanUnit> FakeChannelModel::scanUnits() {
    std::vector<ScanUnit> units;
    for (const PlannedUnit& planned : plan) {
        units.push_back({planned.id, planned.title, QStringLiteral("~/fake/%1").arg(planned.id),
                         [found = planned.found, gate = gate](std::stop_token, ScanFeed& feed) {
                             if (gate)
                                 gate->wait();
                             ScanUnitResult result;
                             for (const CleanupCategory& category : found) {
                                 result.itemCount += static_cast<int>(category.items.size());
                                 result.bytes += CleanerCore::totalSize(category.items);
                             }
                             feed.found(result.itemCount);
                             result.payload = found;
                             return result;
                         }});
    }
    return units;
}

void FakeChannelModel::adoptResults(std::vector<std::any> payloads) {
    results.clear();
    for (std::any& payload : payloads)
        for (CleanupCategory& category : std::any_cast<std::vector<CleanupCategory>&>(payload))
            results.push_back(std::move(category));
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
