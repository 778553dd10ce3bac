#include "Modules/Leftovers/LeftoversModel.hpp"

#include "App/FullDiskAccess.hpp"
#include "CleanerCore/Apps/AppInventory.hpp"
#include "CleanerCore/Apps/LeftoverFinder.hpp"
#include "Modules/Leftovers/LeftoverGroupList.hpp"
#include "Modules/Shared/PhaseFormat.hpp"
#include "Painel/ByteFormat.hpp"

#include <QDir>

#include <memory>

using CleanerCore::OrphanGroup;
using CleanerCore::URL;

LeftoversModel::LeftoversModel(Preferences& preferences, QObject* parent)
    : ModulePhaseModel(preferences, parent), homeFolder(URL::file(QDir::homePath().toStdString())),
      accessProbe([] { return FullDiskAccess::isGranted(); }), groupRows(new LeftoverGroupList(this)) {}

void LeftoversModel::setHome(URL home) {
    homeFolder = home;
    setRemovalHome(std::move(home));
}

ScanPlan LeftoversModel::scanPlan() {
    const bool granted = accessProbe ? accessProbe() : true;
    const URL home = homeFolder;
    KnownSource known = knownSource ? knownSource : [home] {
        return CleanerCore::AppInventory::allKnownBundleIDs(CleanerCore::AppInventory::knownBundleRoots(),
                                                            CleanerCore::AppInventory::Sources::forHome(home));
    };
    auto groups = std::make_shared<std::vector<OrphanGroup>>();
    ScanPlan plan;
    plan.units.push_back({QStringLiteral("library"), qtTrId("leftovers.step.library"), QStringLiteral("~"),
                          [groups, known, home](std::stop_token stop, ScanFeed&) {
                              const std::unordered_set<std::string> ids = known();
                              if (stop.stop_requested())
                                  return ScanUnitResult{};
                              *groups = CleanerCore::LeftoverFinder(home, std::nullopt).orphans(ids, stop);
                              std::int64_t bytes = 0;
                              int items = 0;
                              for (const OrphanGroup& group : *groups) {
                                  bytes += group.totalSize();
                                  items += static_cast<int>(group.items.size());
                              }
                              return ScanUnitResult{bytes, items, std::nullopt};
                          }});
    plan.adopt = [this, groups, granted] {
        found = std::move(*groups);
        if (partial != !granted) {
            partial = !granted;
            emit partialChanged();
        }
    };
    return plan;
}

std::vector<CleanupCategory> LeftoversModel::categories() const {
    CleanupCategory all{QStringLiteral("leftovers"), qtTrId("leftovers.summary"), {}};
    for (const OrphanGroup& each : found)
        all.items.insert(all.items.end(), each.items.begin(), each.items.end());
    if (all.items.empty())
        return {};
    return {std::move(all)};
}

void LeftoversModel::dropRemoved(const std::unordered_set<URL>& removed) {
    for (OrphanGroup& each : found)
        each = each.removing(removed);
    std::erase_if(found, [](const OrphanGroup& each) { return each.items.empty(); });
}

const OrphanGroup* LeftoversModel::group(const QString& bundleID) const {
    const auto it = std::ranges::find(found, bundleID.toStdString(), &OrphanGroup::bundleID);
    return it == found.end() ? nullptr : &*it;
}

void LeftoversModel::toggleGroup(const QString& bundleID) {
    if (const OrphanGroup* target = group(bundleID))
        selection()->setSelected(target->items, !selection()->stateOf(target->items).isOn);
}

QString LeftoversModel::appsText() const {
    return qtTrId("leftovers.summary.apps").arg(PhaseFormat::locale().toString(static_cast<int>(found.size())));
}

QString LeftoversModel::selectedText() const {
    const CleanupSummary chosen = summary();
    return qtTrId("leftovers.selected.value")
        .arg(ByteFormat::text(static_cast<double>(chosen.bytes())), PhaseFormat::count(chosen.count()));
}
