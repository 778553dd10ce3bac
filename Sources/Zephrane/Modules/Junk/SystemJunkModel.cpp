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

SystemJunkModel::SystemJunkModel(QObject* parent) : SystemJunkModel(JunkRule::defaults(), parent) {}

SystemJunkModel::SystemJunkModel(std::vector<JunkRule> rules, QObject* parent)
    : ModulePhaseModel(parent), ruleTable(std::move(rules)),
      homeFolder(URL::file(QDir::homePath().toStdString())),
      runningBundleIDs([] { return CleanerCore::Platform::runningBundleIdentifiers(); }),
      categoryRows(new JunkCategoryList(this)) {}

void SystemJunkModel::setHome(URL newHome) {
    homeFolder = newHome;
    setRemovalHome(std::move(newHome));
}

std::vector<ScanUnit> SystemJunkModel::scanUnits() {
    // The same applications count as running for every rule of one scan.
    const auto running = std::make_shared<const std::set<std::string>>(runningBundleIDs());
    std::vector<ScanUnit> units;
    for (const JunkRule& rule : ruleTable) {
        const QString path =
            rule.sources.empty() ? QString() : "~/" + QString::fromStdString(rule.sources.front().path);
        units.push_back({QString::fromStdString(rule.id), QString::fromStdString(rule.title), path,
                         [scanner = CleanerCore::JunkScanner{homeFolder, {rule}},
                          running](std::stop_token stop, ScanFeed&) {
                             JunkGroup group = scanner.scan(*running, stop).front();
                             return ScanUnitResult{group.totalSize(), static_cast<int>(group.items.size()),
                                                   std::nullopt, std::move(group)};
                         }});
    }
    return units;
}

void SystemJunkModel::adoptResults(std::vector<std::any> payloads) {
    found.clear();
    for (std::any& payload : payloads)
        found.push_back(std::any_cast<JunkGroup>(std::move(payload)));
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

SystemJunkModel::SelectionState SystemJunkModel::selectionState(const JunkGroup& of) const {
    const auto on =
        std::ranges::count_if(of.items, [this](const auto& item) { return selection().contains(item.url); });
    const auto all = static_cast<std::ptrdiff_t>(of.items.size());
    return {on > 0 && on == all, on > 0 && on < all};
}

void SystemJunkModel::setSelected(bool on, const JunkGroup& of) {
    std::unordered_set<URL> urls = selection();
    for (const auto& item : of.items) {
        if (on)
            urls.insert(item.url);
        else
            urls.erase(item.url);
    }
    setSelection(std::move(urls));
}

void SystemJunkModel::toggleGroup(const QString& ruleId) {
    if (const JunkGroup* target = group(ruleId))
        setSelected(!selectionState(*target).isOn, *target);
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
    return qtTrId("junk.selected.detail").arg(countText(chosen.count()), groupsText);
}
