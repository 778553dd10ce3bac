#include "Modules/Junk/SystemJunkModel.hpp"

#include "CleanerCore/Junk/JunkScanner.hpp"
#include "CleanerCore/Platform/RunningApplications.hpp"
#include "Modules/Junk/JunkCategoryList.hpp"
#include "Modules/Shared/PhaseFormat.hpp"
#include "Painel/ByteFormat.hpp"

#include <QDir>

#include <memory>

using CleanerCore::JunkGroup;
using CleanerCore::JunkRule;
using CleanerCore::URL;

SystemJunkModel::SystemJunkModel(Preferences& preferences, QObject* parent)
    : SystemJunkModel(preferences, JunkRule::defaults(), parent) {}

SystemJunkModel::SystemJunkModel(Preferences& preferences, std::vector<JunkRule> rules, QObject* parent)
    : ModulePhaseModel(preferences, parent), ruleTable(std::move(rules)),
      homeFolder(URL::file(QDir::homePath().toStdString())),
      runningBundleIDs([] { return CleanerCore::Platform::runningBundleIdentifiers(); }),
      categoryRows(new JunkCategoryList(this)) {}

void SystemJunkModel::setHome(URL newHome) {
    homeFolder = newHome;
    setRemovalHome(std::move(newHome));
}

ScanPlan SystemJunkModel::scanPlan() {
    // The same applications count as running for every rule of one scan.
    const auto running = std::make_shared<const std::set<std::string>>(runningBundleIDs());
    // One group per rule, each written by its own unit.
    auto groups = std::make_shared<std::vector<JunkGroup>>();
    for (const JunkRule& rule : ruleTable)
        groups->push_back(JunkGroup{rule, {}});
    ScanPlan plan;
    for (std::size_t index = 0; index < ruleTable.size(); ++index) {
        const JunkRule& rule = ruleTable[index];
        const QString path =
            rule.sources.empty() ? QString() : "~/" + QString::fromStdString(rule.sources.front().path);
        plan.units.push_back({QString::fromStdString(rule.id), QString::fromStdString(rule.title), path,
                              [scanner = CleanerCore::JunkScanner{homeFolder, {rule}}, running, groups,
                               index](std::stop_token stop, ScanFeed&) {
                                  JunkGroup& group = (*groups)[index];
                                  group = scanner.scan(*running, stop).front();
                                  return ScanUnitResult{group.totalSize(), static_cast<int>(group.items.size()),
                                                        std::nullopt};
                              }});
    }
    plan.adopt = [this, groups] { found = std::move(*groups); };
    return plan;
}

std::vector<CleanupCategory> SystemJunkModel::categories() const {
    std::vector<CleanupCategory> result;
    for (const JunkGroup& each : found)
        result.push_back(
            {QString::fromStdString(each.id()), QString::fromStdString(each.rule.title), each.items});
    return result;
}

void SystemJunkModel::dropRemoved(const std::unordered_set<URL>& removed) {
    for (JunkGroup& each : found)
        each = each.removing(removed);
}

void SystemJunkModel::toggleGroup(const QString& ruleId) {
    if (const JunkGroup* target = group(ruleId))
        selection()->setSelected(target->items, !selection()->stateOf(target->items).isOn);
}

const JunkGroup* SystemJunkModel::group(const QString& ruleId) const {
    const auto it = std::ranges::find(found, ruleId.toStdString(), &JunkGroup::id);
    return it == found.end() ? nullptr : &*it;
}

QString SystemJunkModel::foundText() const {
    return ByteFormat::text(static_cast<double>(foundBytes()));
}

QString SystemJunkModel::selectedText() const {
    return qtTrId("junk.selected").arg(ByteFormat::text(static_cast<double>(summary().bytes())));
}

QString SystemJunkModel::selectedDetail() const {
    const CleanupSummary chosen = summary();
    const auto groupCount = static_cast<int>(chosen.lines.size());
    const QString groupsText =
        (groupCount == 1 ? qtTrId("junk.category.count.one") : qtTrId("junk.category.count.other"))
            .arg(PhaseFormat::locale().toString(groupCount));
    return qtTrId("junk.selected.detail").arg(PhaseFormat::count(chosen.count()), groupsText);
}
