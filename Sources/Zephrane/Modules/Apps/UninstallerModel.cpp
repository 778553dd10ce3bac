#include "Modules/Apps/UninstallerModel.hpp"

#include "CleanerCore/Apps/AppIcon.hpp"
#include "CleanerCore/Apps/AppImageIntegration.hpp"
#include "CleanerCore/Apps/AppInventory.hpp"
#include "CleanerCore/Display/CoreL10n.hpp"
#include "CleanerCore/Display/RelativeDate.hpp"
#include "CleanerCore/Files/FileSize.hpp"
#include "CleanerCore/Platform/FlatpakUninstall.hpp"
#include "CleanerCore/Platform/PoliteQuit.hpp"
#include "Modules/Apps/InstalledAppList.hpp"
#include "Modules/Shared/CleanupItemList.hpp"
#include "Modules/Shared/PhaseFormat.hpp"
#include "Painel/ByteFormat.hpp"

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QTimer>

#include <algorithm>
#include <memory>

using CleanerCore::AppKind;
using CleanerCore::AppLeftover;
using CleanerCore::CleanupItem;
using CleanerCore::InstalledApp;
using CleanerCore::LeftoverKind;
using CleanerCore::UninstallBlocker;
using CleanerCore::URL;

namespace {

// What one scan gathers, written by its two units in turn and adopted at the end.
struct Found {
    std::vector<InstalledApp> apps;
    std::unordered_map<URL, std::vector<AppLeftover>> leftovers;
    std::unordered_map<URL, std::int64_t> sizes;
    std::unordered_map<URL, URL> icons;
    std::unordered_map<URL, std::vector<URL>> integration;
};

std::int64_t sum(const std::unordered_map<URL, std::int64_t>& sizes, const std::vector<URL>& urls) {
    std::int64_t total = 0;
    for (const URL& url : urls)
        if (auto found = sizes.find(url); found != sizes.end())
            total += found->second;
    return total;
}

QString homeShort(const URL& url, const URL& home) {
    const QString path = QString::fromStdString(url.path());
    const QString homePath = QString::fromStdString(home.path());
    return path.startsWith(homePath + '/') ? "~" + path.mid(homePath.size()) : path;
}

} // namespace

UninstallerModel::UninstallerModel(Preferences& preferences, QObject* parent)
    : ModulePhaseModel(preferences, parent),
      runningSource([] { return CleanerCore::AppInventory::runningBundleIDs(); }),
      quitRequest([](const std::string& id) { CleanerCore::Platform::askToQuit(id); }),
      flatpakUninstaller([](const InstalledApp& app) { return CleanerCore::Platform::uninstallFlatpak(app.url.path()); }),
      homeFolder(URL::file(QDir::homePath().toStdString())), appRows(new InstalledAppList(this)),
      fileRows(new CleanupItemList({}, *selection(), {}, this)) {
    // Apps start and stop while the window is elsewhere: look again when it comes back.
    if (auto* gui = qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        connect(gui, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
            if (state == Qt::ApplicationActive && hasScanned())
                refreshRunning();
        });
}

void UninstallerModel::setHome(URL home) {
    homeFolder = home;
    setRemovalHome(std::move(home));
}

const std::set<std::string>& UninstallerModel::ownBundleIDs() {
    static const std::set<std::string> own = [] {
        std::set<std::string> ids{"dev.tavrix.zephrane"};
        const std::string mine = QCoreApplication::organizationDomain().toLower().toStdString();
        if (!mine.empty())
            ids.insert(mine);
        return ids;
    }();
    return own;
}

ScanPlan UninstallerModel::scanPlan() {
    auto found = std::make_shared<Found>();
    const URL home = homeFolder;
    AppSource source = appSource ? appSource : [home] {
        return CleanerCore::AppInventory::installedApps(CleanerCore::AppInventory::defaultFolders(),
                                                        CleanerCore::AppInventory::Sources::forHome(home));
    };
    ScanPlan plan;
    plan.units.push_back(
        {QStringLiteral("apps"), qtTrId("apps.step.apps"), QStringLiteral("~/Applications"),
         [found, source, home](std::stop_token stop, ScanFeed&) {
             found->apps = source();
             std::vector<URL> measured;
             for (const InstalledApp& app : found->apps) {
                 if (app.installedSize)
                     found->sizes[app.url] = *app.installedSize;
                 else
                     measured.push_back(app.url);
                 if (auto icon = CleanerCore::AppIcon::of(app, home))
                     found->icons.emplace(app.url, *icon);
                 if (app.kind == AppKind::appImage)
                     found->integration[app.url] = CleanerCore::AppImageIntegration::files(app.url, home);
             }
             if (!stop.stop_requested())
                 found->sizes.merge(CleanerCore::FileSize::sizes(measured, stop));
             std::vector<URL> all;
             for (const InstalledApp& app : found->apps)
                 all.push_back(app.url);
             return ScanUnitResult{sum(found->sizes, all), static_cast<int>(found->apps.size()), std::nullopt};
         }});
    plan.units.push_back(
        {QStringLiteral("leftovers"), qtTrId("apps.step.leftovers"), QStringLiteral("~/.var/app"),
         [found, home](std::stop_token stop, ScanFeed&) {
             // Every app's nested-identifier guard sees all the others.
             std::unordered_set<std::string> ids;
             for (const InstalledApp& app : found->apps)
                 if (app.bundleID)
                     ids.insert(QString::fromStdString(*app.bundleID).toLower().toStdString());
             found->leftovers = CleanerCore::LeftoverFinder(home, std::nullopt).appLeftovers(found->apps, ids);
             std::vector<URL> urls;
             for (const auto& [app, list] : found->leftovers)
                 for (const AppLeftover& leftover : list)
                     urls.push_back(leftover.url);
             if (!stop.stop_requested())
                 found->sizes.merge(CleanerCore::FileSize::sizes(urls, stop));
             return ScanUnitResult{sum(found->sizes, urls), static_cast<int>(urls.size()), std::nullopt};
         }});
    plan.adopt = [this, found] {
        installed = std::move(found->apps);
        leftovers = std::move(found->leftovers);
        sizes = std::move(found->sizes);
        icons = std::move(found->icons);
        integration = std::move(found->integration);
        refreshRunning();
        if (!selectedApp()) {
            const std::vector<InstalledApp> visible = visibleApps();
            selectedID = visible.empty() ? std::nullopt : std::optional<URL>(visible.front().url);
        }
        // The selection itself follows from the files' default ticks once the scan is taken in.
        selectedChanged();
        emit visibleAppsChanged();
    };
    return plan;
}

std::vector<InstalledApp> UninstallerModel::visibleApps() const {
    std::vector<InstalledApp> visible;
    const QString needle = searchText.trimmed();
    for (const InstalledApp& app : installed)
        if (needle.isEmpty() || QString::fromStdString(app.name).contains(needle, Qt::CaseInsensitive) ||
            (app.bundleID && QString::fromStdString(*app.bundleID).contains(needle, Qt::CaseInsensitive)))
            visible.push_back(app);
    switch (order) {
    case Sort::size: {
        std::unordered_map<URL, std::int64_t> totals;
        for (const InstalledApp& app : visible)
            totals[app.url] = totalSize(app);
        std::ranges::stable_sort(visible, std::greater<>{}, [&](const InstalledApp& app) { return totals[app.url]; });
        break;
    }
    case Sort::name:
        break; // the inventory's own order
    case Sort::lastUsed:
        // Never used counts as the far future: those come last, the longest unused first.
        std::ranges::stable_sort(visible, {}, [](const InstalledApp& app) {
            return app.lastUsed.value_or(std::chrono::system_clock::time_point::max());
        });
        break;
    }
    return visible;
}

const InstalledApp* UninstallerModel::selectedApp() const {
    if (!selectedID)
        return nullptr;
    const auto found = std::ranges::find(installed, *selectedID, &InstalledApp::url);
    return found == installed.end() ? nullptr : &*found;
}

std::vector<CleanupItem> UninstallerModel::files(const InstalledApp& app) const {
    const auto sizeOf = [this](const URL& url) {
        const auto found = sizes.find(url);
        return found == sizes.end() ? std::int64_t{0} : found->second;
    };
    std::vector<CleanupItem> result{{app.url, sizeOf(app.url), std::nullopt, true}};
    std::vector<CleanupItem> rest;
    if (const auto found = leftovers.find(app.url); found != leftovers.end())
        for (const AppLeftover& leftover : found->second)
            rest.push_back({leftover.url, sizeOf(leftover.url),
                            leftover.caution ? std::optional(CleanerCore::note(*leftover.caution)) : std::nullopt,
                            !leftover.caution});
    std::ranges::stable_sort(rest, std::greater<>{}, &CleanupItem::size);
    result.insert(result.end(), rest.begin(), rest.end());
    return result;
}

std::int64_t UninstallerModel::totalSize(const InstalledApp& app) const {
    return CleanerCore::totalSize(files(app));
}

std::optional<UninstallBlocker> UninstallerModel::blockerOf(const InstalledApp& app) const {
    return app.uninstallBlocker(running, ownBundleIDs());
}

std::optional<UninstallBlocker> UninstallerModel::selectedBlocker() const {
    const InstalledApp* app = selectedApp();
    return app ? blockerOf(*app) : std::nullopt;
}

std::optional<URL> UninstallerModel::iconOf(const InstalledApp& app) const {
    const auto found = icons.find(app.url);
    return found == icons.end() ? std::nullopt : std::optional(found->second);
}

std::vector<CleanupCategory> UninstallerModel::categories() const {
    const InstalledApp* app = selectedApp();
    if (!app)
        return {};
    // The kind of each file: the bundle is the app, the others as the finder judged them.
    std::unordered_map<URL, LeftoverKind> kinds{{app->url, LeftoverKind::app}};
    if (const auto found = leftovers.find(app->url); found != leftovers.end())
        for (const AppLeftover& leftover : found->second)
            kinds.emplace(leftover.url, leftover.kind);
    std::vector<CleanupItem> all = files(*app);
    std::vector<CleanupCategory> result;
    for (LeftoverKind kind : CleanerCore::allLeftoverKinds) {
        CleanupCategory category{QString::fromStdString(std::string(CleanerCore::rawValue(kind))),
                                 QString::fromStdString(CleanerCore::title(kind)),
                                 {}};
        for (const CleanupItem& item : all)
            if (kinds[item.url] == kind)
                category.items.push_back(item);
        if (!category.items.empty())
            result.push_back(std::move(category));
    }
    return result;
}

void UninstallerModel::dropRemoved(const std::unordered_set<URL>& removed) {
    const InstalledApp* app = selectedApp();
    if (!app)
        return;
    const URL url = app->url;
    lastRemovalUninstalledFlatpak = removed.contains(url) && CleanerCore::isFlatpak(app->kind);
    if (auto found = leftovers.find(url); found != leftovers.end())
        std::erase_if(found->second, [&](const AppLeftover& leftover) { return removed.contains(leftover.url); });
    if (removed.contains(url)) {
        const std::vector<InstalledApp> before = visibleApps();
        const auto at = std::ranges::find(before, url, &InstalledApp::url);
        const std::size_t index = at == before.end() ? 0 : static_cast<std::size_t>(at - before.begin());
        std::erase_if(installed, [&](const InstalledApp& each) { return each.url == url; });
        leftovers.erase(url);
        const std::vector<InstalledApp> after = visibleApps();
        selectedID = after.empty() ? std::nullopt : std::optional(after[std::min(index, after.size() - 1)].url);
        emit visibleAppsChanged();
    }
    selectedChanged();
    resetSelection();
}

bool UninstallerModel::readyToRemove() {
    // Whatever the screen showed, the blocker is asked again at the last moment.
    refreshRunning();
    return selectedApp() != nullptr && !selectedBlocker();
}

std::vector<CleanupItem> UninstallerModel::removedWith(const CleanupItem& item) const {
    std::vector<CleanupItem> with;
    if (const auto found = integration.find(item.url); found != integration.end())
        for (const URL& file : found->second)
            with.push_back({file, 0, std::nullopt, true});
    return with;
}

ModulePhaseModel::RemovalJob UninstallerModel::removalJob(std::vector<CleanupItem> items,
                                                          CleanerCore::RemovalMode mode) const {
    const InstalledApp* app = selectedApp();
    const auto bundle = app ? std::ranges::find(items, app->url, &CleanupItem::url) : items.end();
    if (!app || !CleanerCore::isFlatpak(app->kind) || bundle == items.end())
        return ModulePhaseModel::removalJob(std::move(items), mode);
    // A Flatpak leaves through its installation; its files in the home through Cleaner, and only
    // once the app is gone, so a refused uninstall leaves its data with it.
    const CleanupItem bundleItem = *bundle;
    items.erase(bundle);
    std::vector<URL> rest;
    for (const CleanupItem& item : items)
        rest.push_back(item.url);
    RemovalJob fileJob = items.empty() ? RemovalJob{} : ModulePhaseModel::removalJob(std::move(items), mode);
    return [uninstall = flatpakUninstaller, app = *app, bundleItem, fileJob, rest, mode] {
        CleanerCore::RemovalReport report;
        report.mode = mode;
        if (const auto failure = uninstall(app)) {
            report.failures.push_back({bundleItem.url, *failure});
            for (const URL& url : rest)
                report.failures.push_back({url, CleanerCore::CoreL10n::string("core.uninstall.failure.keptWithApp")});
            return report;
        }
        report.removed.push_back(bundleItem.url);
        report.bytes += bundleItem.size;
        if (fileJob) {
            const CleanerCore::RemovalReport files = fileJob();
            report.removed.insert(report.removed.end(), files.removed.begin(), files.removed.end());
            report.failures.insert(report.failures.end(), files.failures.begin(), files.failures.end());
            report.bytes += files.bytes;
        }
        return report;
    };
}

void UninstallerModel::setSearch(const QString& text) {
    if (text == searchText)
        return;
    searchText = text;
    emit searchChanged();
    emit visibleAppsChanged();
}

void UninstallerModel::setSort(Sort sort) {
    if (sort == order)
        return;
    order = sort;
    emit sortChanged();
    emit visibleAppsChanged();
}

QStringList UninstallerModel::sorts() {
    return {QStringLiteral("size"), QStringLiteral("name"), QStringLiteral("lastUsed")};
}

QString UninstallerModel::sortRaw() const {
    return sorts().at(static_cast<int>(order));
}

void UninstallerModel::setSortRaw(const QString& raw) {
    if (const auto index = sorts().indexOf(raw); index >= 0)
        setSort(static_cast<Sort>(index));
}

void UninstallerModel::selectApp(const std::optional<URL>& url) {
    if (url == selectedID)
        return;
    selectedID = url;
    selectedChanged();
    resetSelection();
}

void UninstallerModel::selectAppPath(const QString& path) {
    selectApp(path.isEmpty() ? std::nullopt : std::optional(URL::file(path.toStdString())));
}

void UninstallerModel::moveSelection(int delta) {
    const std::vector<InstalledApp> visible = visibleApps();
    if (visible.empty())
        return;
    const auto at = selectedID ? std::ranges::find(visible, *selectedID, &InstalledApp::url) : visible.end();
    // With nothing selected (or the selected app filtered out), the first step lands on an end.
    const long from = at == visible.end() ? (delta > 0 ? -1 : static_cast<long>(visible.size()))
                                          : static_cast<long>(at - visible.begin());
    const long to = std::clamp(from + delta, 0L, static_cast<long>(visible.size()) - 1);
    selectApp(visible[static_cast<std::size_t>(to)].url);
}

void UninstallerModel::resetSelection() {
    std::unordered_set<URL> ticked;
    if (const InstalledApp* app = selectedApp())
        for (const CleanupItem& item : files(*app))
            if (item.selectedByDefault)
                ticked.insert(item.url);
    selection()->set(std::move(ticked));
}

void UninstallerModel::selectedChanged() {
    CleanupItemList* old = fileRows;
    const InstalledApp* app = selectedApp();
    const std::optional<InstalledApp> bundle = app ? std::optional(*app) : std::nullopt;
    std::unordered_map<URL, LeftoverKind> kinds;
    if (app) {
        kinds.emplace(app->url, LeftoverKind::app);
        if (const auto found = leftovers.find(app->url); found != leftovers.end())
            for (const AppLeftover& leftover : found->second)
                kinds.emplace(leftover.url, leftover.kind);
    }
    fileRows = new CleanupItemList(app ? files(*app) : std::vector<CleanupItem>{}, *selection(),
                                   [kinds, home = homeFolder, bundle](const CleanupItem& item) {
                                       const auto kind = kinds.find(item.url);
                                       const QString title = kind == kinds.end()
                                                                 ? QString()
                                                                 : QString::fromStdString(CleanerCore::title(kind->second));
                                       // A Flatpak's deploy folder means nothing to its user: say how it goes.
                                       if (bundle && item.url == bundle->url && CleanerCore::isFlatpak(bundle->kind))
                                           return title + QStringLiteral(" · ") + InstalledAppList::kindText(bundle->kind);
                                       return title + QStringLiteral(" · ") +
                                              (item.note ? QString::fromStdString(*item.note) : homeShort(item.url, home));
                                   },
                                   [bundle](const CleanupItem& item) {
                                       // A Flatpak's deploy folder is named by its commit: show the app.
                                       return bundle && item.url == bundle->url && CleanerCore::isFlatpak(bundle->kind)
                                                  ? QString::fromStdString(bundle->name)
                                                  : QString::fromStdString(item.name());
                                   },
                                   this);
    connect(this, &ModulePhaseModel::selectionChanged, fileRows, [list = fileRows] { list->refreshSelection(); });
    notifyResultsChanged();
    emit selectedAppChanged();
    emit blockerChanged();
    old->deleteLater();
}

void UninstallerModel::refreshRunning() {
    setRunning(runningSource ? runningSource() : std::set<std::string>{});
}

void UninstallerModel::setRunning(std::set<std::string> ids) {
    if (ids == running)
        return;
    running = std::move(ids);
    emit blockerChanged();
}

void UninstallerModel::askToUninstall() {
    refreshRunning();
    if (selectedBlocker() || summary().count() == 0)
        return;
    setConfirming(true);
}

void UninstallerModel::quitSelectedApp() {
    const InstalledApp* app = selectedApp();
    if (!app || selectedBlocker() != UninstallBlocker::running || !app->bundleID || quitLooks > 0)
        return;
    quitRequest(*app->bundleID);
    quitLooks = 10;
    emit quittingChanged();
    QTimer::singleShot(300, this, &UninstallerModel::quitLook);
}

void UninstallerModel::quitLook() {
    refreshRunning();
    if (--quitLooks > 0 && selectedBlocker() == UninstallBlocker::running) {
        QTimer::singleShot(300, this, &UninstallerModel::quitLook);
        return;
    }
    // An app that stays open stays blocked, with its banner; it is never forced.
    quitLooks = 0;
    emit quittingChanged();
}

QString UninstallerModel::selectedAppPath() const {
    return selectedID ? QString::fromStdString(selectedID->path()) : QString();
}

QString UninstallerModel::selectedName() const {
    const InstalledApp* app = selectedApp();
    return app ? QString::fromStdString(app->name) : QString();
}

QString UninstallerModel::selectedDetail() const {
    const InstalledApp* app = selectedApp();
    if (!app)
        return {};
    const QString kind = InstalledAppList::kindText(app->kind);
    const QString id = app->bundleID ? QString::fromStdString(*app->bundleID) : QString();
    QStringList parts;
    if (app->version)
        parts << qtTrId("apps.version").arg(QString::fromStdString(*app->version));
    parts << kind;
    if (!id.isEmpty())
        parts << id;
    return parts.join(QStringLiteral(" · "));
}

QString UninstallerModel::selectedIcon() const {
    const InstalledApp* app = selectedApp();
    return app ? InstalledAppList::iconSource(iconOf(*app)) : QString();
}

qint64 UninstallerModel::selectedTotal() const {
    const InstalledApp* app = selectedApp();
    return app ? totalSize(*app) : 0;
}

QString UninstallerModel::lastUsedText() const {
    const InstalledApp* app = selectedApp();
    if (!app)
        return {};
    if (!app->lastUsed)
        return qtTrId("apps.lastUsed.never");
    // Within the last minute (or stamped a moment ahead of this clock) is just now, not "in 0 seconds".
    const auto now = std::chrono::system_clock::now();
    if (now - *app->lastUsed < std::chrono::minutes(1))
        return qtTrId("apps.lastUsed.now");
    return qtTrId("apps.lastUsed").arg(
        QString::fromStdString(CleanerCore::RelativeDate::string(*app->lastUsed, now, CleanerCore::CoreL10n::bundle())));
}

QString UninstallerModel::blockerRaw() const {
    const auto blocker = selectedBlocker();
    return blocker ? QString::fromStdString(std::string(rawValue(*blocker))) : QString();
}

QString UninstallerModel::blockerMessage() const {
    switch (selectedBlocker().value_or(UninstallBlocker::zephrane)) {
    case UninstallBlocker::running:
        return qtTrId("apps.blocked.running").arg(selectedName());
    case UninstallBlocker::apple:
        return qtTrId("apps.blocked.apple").arg(selectedName());
    case UninstallBlocker::zephrane:
        return selectedBlocker() ? qtTrId("apps.blocked.self") : QString();
    }
    return {};
}

QString UninstallerModel::blockerButton() const {
    switch (selectedBlocker().value_or(UninstallBlocker::zephrane)) {
    case UninstallBlocker::running:
        return qtTrId("apps.blocked.button.running");
    case UninstallBlocker::apple:
        return qtTrId("apps.blocked.button.apple");
    case UninstallBlocker::zephrane:
        return selectedBlocker() ? qtTrId("apps.blocked.button.self") : QString();
    }
    return {};
}

QString UninstallerModel::confirmNote() const {
    return qtTrId("apps.confirm.note").arg(selectedName());
}

QString UninstallerModel::selectedText() const {
    const CleanupSummary chosen = summary();
    return qtTrId("apps.selected").arg(ByteFormat::text(static_cast<double>(chosen.bytes())),
                                       PhaseFormat::count(chosen.count()));
}

qint64 UninstallerModel::foundBytes() const {
    qint64 total = 0;
    for (const InstalledApp& app : installed)
        total += totalSize(app);
    return total;
}

QString UninstallerModel::foundSpoken() const {
    return InstalledAppList::countText(static_cast<int>(installed.size()));
}

QString UninstallerModel::successBody() const {
    if (!lastRemovalUninstalledFlatpak)
        return {};
    return outcome() && outcome()->destination == CleanDestination::trash ? qtTrId("apps.success.flatpak.trash")
                                                                           : qtTrId("apps.success.flatpak.delete");
}

QString UninstallerModel::confirmQuestion() const {
    const InstalledApp* app = selectedApp();
    if (!app || !CleanerCore::isFlatpak(app->kind) || !selection()->contains(app->url))
        return {};
    return qtTrId("apps.confirm.question.flatpak").arg(selectedName());
}
