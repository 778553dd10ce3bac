#include "Modules/Updates/UpdatesModel.hpp"

#include "App/Announcer.hpp"
#include "App/Preferences.hpp"
#include "CleanerCore/Apps/AppBundleInfo.hpp"
#include "CleanerCore/Apps/AppInventory.hpp"
#include "CleanerCore/Display/CoreL10n.hpp"
#include "CleanerCore/Display/RelativeDate.hpp"
#include "CleanerCore/Platform/FlatpakUpdates.hpp"
#include "CleanerCore/Updates/AppUpdateFinder.hpp"
#include "CleanerCore/Updates/CurlUpdateFetcher.hpp"
#include "CleanerCore/Updates/SpawnCommandRunner.hpp"
#include "Modules/Shared/PhaseFormat.hpp"
#include "Modules/Shared/WhenDone.hpp"
#include "Modules/Updates/UpdateList.hpp"

#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QGuiApplication>
#include <QPointer>
#include <QPromise>
#include <QtConcurrent/QtConcurrentRun>

#include <atomic>
#include <memory>
#include <mutex>

using CleanerCore::AppUpdate;
using CleanerCore::AppUpdateAction;
using CleanerCore::AppUpdateInstaller;
using CleanerCore::InstalledApp;
using CleanerCore::URL;

namespace {

// What the system engine shares between its finder and installer: a Flatpak update is installed
// from the record its check returned, which the finder's rows do not carry.
struct SystemParts {
    CleanerCore::CurlUpdateFetcher fetcher{std::chrono::seconds(30), std::size_t{32} << 20};
    CleanerCore::SpawnCommandRunner runner;
    std::mutex mutex;
    std::map<std::string, CleanerCore::Platform::FlatpakUpdate> flatpaks; // by deploy folder
    std::unique_ptr<CleanerCore::AppUpdateFinder> finder;
    std::unique_ptr<AppUpdateInstaller> installer;

    SystemParts() {
        CleanerCore::AppUpdateFinder::Settings settings;
        settings.cacheFolder = CleanerCore::AppUpdateFinder::defaultCacheFolder();
        settings.flatpakSource = [this](bool offline) {
            auto offered = CleanerCore::Platform::flatpakUpdates(offline);
            std::lock_guard lock(mutex);
            flatpaks.clear();
            for (const auto& each : offered)
                flatpaks[each.deployPath] = each;
            return offered;
        };
        finder = std::make_unique<CleanerCore::AppUpdateFinder>(fetcher, std::move(settings));
        installer = std::make_unique<AppUpdateInstaller>(fetcher, runner);
    }
};

std::vector<CleanerCore::AppBundleInfo> bundles(const std::vector<InstalledApp>& apps) {
    std::vector<CleanerCore::AppBundleInfo> infos;
    for (const InstalledApp& app : apps)
        if (!CleanerCore::isFlatpak(app.kind))
            if (auto info = CleanerCore::AppBundleInfo::fromApp(app))
                infos.push_back(std::move(*info));
    return infos;
}

} // namespace

UpdatesModel::Engine UpdatesModel::Engine::system() {
    auto parts = std::make_shared<SystemParts>();
    Engine engine;
    engine.apps = [] {
        return CleanerCore::AppInventory::installedApps(CleanerCore::AppInventory::defaultFolders(),
                                                        CleanerCore::AppInventory::Sources::machine());
    };
    engine.find = [parts](Source source, const std::vector<InstalledApp>& apps, std::stop_token stop) {
        const auto& finder = *parts->finder;
        switch (source) {
        case Source::appStore:
            return finder.appStoreUpdates(finder.plan(bundles(apps)).appStore, stop);
        case Source::sparkle:
            return finder.sparkleUpdates(finder.plan(bundles(apps)).sparkle, stop);
        case Source::homebrew:
            return finder.homebrewUpdates(finder.plan(bundles(apps)).others);
        case Source::flatpak: {
            std::vector<InstalledApp> flatpaks;
            std::ranges::copy_if(apps, std::back_inserter(flatpaks),
                                 [](const InstalledApp& app) { return CleanerCore::isFlatpak(app.kind); });
            return flatpaks.empty() ? std::vector<AppUpdate>{} : finder.flatpakUpdates(flatpaks);
        }
        }
        return std::vector<AppUpdate>{};
    };
    // The running list holds identifiers in lower case.
    engine.isRunning = [](const std::string& bundleID) {
        std::string lower = bundleID;
        std::ranges::transform(lower, lower.begin(),
                               [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
        return CleanerCore::AppInventory::runningBundleIDs().contains(lower);
    };
    engine.install = [parts, isRunning = engine.isRunning](const AppUpdate& update,
                                                           const std::function<void(Stage)>& progress,
                                                           std::stop_token stop) {
        if (update.source != Source::flatpak) {
            parts->installer->install(update, isRunning, progress, stop);
            return;
        }
        std::optional<CleanerCore::Platform::FlatpakUpdate> offered;
        {
            std::lock_guard lock(parts->mutex);
            if (auto it = parts->flatpaks.find(update.appURL.path()); it != parts->flatpaks.end())
                offered = it->second;
        }
        if (!offered)
            throw AppUpdateInstaller::Failure(AppUpdateInstaller::Failure::Kind::noDownload);
        try {
            CleanerCore::Platform::installFlatpakUpdate(
                *offered,
                [&](CleanerCore::Platform::FlatpakUpdateStage stage) {
                    progress(stage == CleanerCore::Platform::FlatpakUpdateStage::downloading ? Stage::downloading
                                                                                             : Stage::installing);
                },
                stop);
        } catch (const CleanerCore::Platform::FlatpakUpdateError&) {
            if (stop.stop_requested())
                throw AppUpdateInstaller::OperationCancelled();
            throw;
        }
    };
    engine.openURL = [](const QUrl& url) { QDesktopServices::openUrl(url); };
    engine.copyText = [](const QString& text) {
        if (QClipboard* clipboard = QGuiApplication::clipboard())
            clipboard->setText(text);
    };
    engine.now = [] { return QDateTime::currentDateTimeUtc(); };
    return engine;
}

UpdatesModel::UpdatesModel(Preferences& preferences, QObject* parent)
    : UpdatesModel(preferences, Engine::system(), parent) {}

UpdatesModel::UpdatesModel(Preferences& preferences, Engine engine, QObject* parent)
    : ModulePhaseModel(preferences, parent), engine(std::move(engine)), settings(preferences),
      rowModel(new UpdateList(this)) {
    ignored.versions = settings.ignoredUpdateVersions();
    if (const QDateTime last = settings.updatesLastChecked(); last.isValid())
        checked = last;
}

UpdatesModel::~UpdatesModel() {
    batchStop.request_stop();
    worker.waitForFinished();
}

const AppUpdate* UpdatesModel::update(const QString& id) const {
    const std::string wanted = id.toStdString();
    const auto it = std::ranges::find_if(found, [&](const AppUpdate& each) { return each.id() == wanted; });
    return it == found.end() ? nullptr : &*it;
}

ScanPlan UpdatesModel::scanPlan() {
    struct Found {
        std::vector<InstalledApp> apps;
        std::map<Source, std::vector<AppUpdate>> bySource;
    };
    auto shared = std::make_shared<Found>();
    ScanPlan plan;
    auto apps = engine.apps;
    const QString appsFound = qtTrId("updates.step.apps.found");
    const QString updatesFound = qtTrId("updates.step.found");
    const QLocale locale = PhaseFormat::locale();
    plan.units.push_back({QStringLiteral("apps"), qtTrId("updates.step.apps"),
                          QStringLiteral("~/Applications"),
                          [shared, apps, appsFound, locale](std::stop_token, ScanFeed&) {
                              shared->apps = apps();
                              const int count = static_cast<int>(shared->apps.size());
                              return ScanUnitResult{0, count, appsFound.arg(locale.toString(count))};
                          }});
    const std::pair<Source, const char*> steps[] = {{Source::appStore, QT_TRID_NOOP("updates.step.appStore")},
                                                    {Source::sparkle, QT_TRID_NOOP("updates.step.sparkle")},
                                                    {Source::homebrew, QT_TRID_NOOP("updates.step.homebrew")},
                                                    {Source::flatpak, QT_TRID_NOOP("updates.step.flatpak")}};
    for (const auto& [source, title] : steps) {
        auto find = engine.find;
        plan.units.push_back({QString::fromUtf8(CleanerCore::rawValue(source).data()), qtTrId(title),
                              QString(),
                              [shared, find, source, updatesFound, locale](std::stop_token stop, ScanFeed&) {
                                  auto updates = find(source, shared->apps, stop);
                                  const int count = static_cast<int>(updates.size());
                                  shared->bySource[source] = std::move(updates);
                                  return ScanUnitResult{0, count, updatesFound.arg(locale.toString(count))};
                              }});
    }
    plan.adopt = [this, shared] {
        found.clear();
        for (auto& [source, updates] : shared->bySource)
            for (AppUpdate& each : updates)
                found.push_back(std::move(each));
        CleanerCore::sortByName(found);
        rowStates.clear();
        chosen.clear();
        for (const AppUpdate& each : visibleUpdates())
            if (each.action() == AppUpdateAction::install)
                chosen.insert(each.id());
        checked = engine.now();
        settings.setUpdatesLastChecked(*checked);
        emit checkedChanged();
        notifyResultsChanged();
        emit statesChanged();
    };
    return plan;
}

std::optional<int> UpdatesModel::pendingCount() const {
    if (!hasScanned())
        return std::nullopt;
    int pending = 0;
    for (const AppUpdate& each : visibleUpdates())
        pending += state(each).kind != RowState::Kind::installed;
    return pending;
}

QVariant UpdatesModel::pendingCountValue() const {
    const auto pending = pendingCount();
    return pending ? QVariant(*pending) : QVariant();
}

int UpdatesModel::count(Source source) const {
    return static_cast<int>(std::ranges::count(visibleUpdates(), source, &AppUpdate::source));
}

UpdatesModel::RowState UpdatesModel::state(const AppUpdate& update) const {
    const auto it = rowStates.find(QString::fromStdString(update.id()));
    return it == rowStates.end() ? RowState{} : it->second;
}

bool UpdatesModel::isSelectable(const AppUpdate& update) const {
    return !installing && update.action() == AppUpdateAction::install &&
           state(update).kind != RowState::Kind::installed;
}

void UpdatesModel::setSelected(const AppUpdate& update, bool on) {
    if (on && !isSelectable(update))
        return;
    if (on ? chosen.insert(update.id()).second : chosen.erase(update.id()) > 0)
        emit statesChanged();
}

int UpdatesModel::selectedCount() const {
    int selected = 0;
    for (const AppUpdate& each : visibleUpdates())
        selected += chosen.contains(each.id());
    return selected;
}

void UpdatesModel::perform(const AppUpdate& update) {
    switch (update.action()) {
    case AppUpdateAction::install:
        install({update});
        return;
    case AppUpdateAction::openStore:
        engine.openURL(update.storeURL ? QUrl(QString::fromStdString(update.storeURL->absoluteString()))
                                       : QUrl(QStringLiteral("macappstore://showUpdatesPage")));
        return;
    case AppUpdateAction::copyCommand:
        if (const auto command = update.brewCommand()) {
            engine.copyText(QString::fromStdString(*command));
            Announcer::announce(qtTrId("updates.announce.copied"));
        }
        return;
    case AppUpdateAction::openApp:
        engine.openURL(QUrl::fromLocalFile(QString::fromStdString(update.appURL.path())));
        Announcer::announce(qtTrId("updates.announce.opened").arg(QString::fromStdString(update.name)));
        return;
    }
}

void UpdatesModel::setState(const QString& id, RowState state) {
    if (rowStates[id] == state)
        return;
    // An installed app has nothing left to tick.
    if (state.kind == RowState::Kind::installed)
        chosen.erase(id.toStdString());
    rowStates[id] = std::move(state);
    emit statesChanged();
}

QFuture<void> UpdatesModel::install(std::vector<AppUpdate> list) {
    if (installing)
        return QtFuture::makeReadyFuture();
    std::erase_if(list, [](const AppUpdate& each) {
        return each.action() != AppUpdateAction::install || !each.bundleID;
    });
    if (list.empty())
        return QtFuture::makeReadyFuture();
    installing = true;
    emit statesChanged();
    QPointer<UpdatesModel> self(this);
    // Posted to the interface thread; the model waits for the batch before it goes.
    auto post = [self](QString id, RowState state) {
        QMetaObject::invokeMethod(
            self, [self, id, state] { self->setState(id, state); }, Qt::QueuedConnection);
    };
    const Engine parts = engine;
    const auto size = static_cast<int>(list.size());
    batchStop = std::stop_source();
    auto done = std::make_shared<std::atomic<int>>(0);
    worker = QtConcurrent::run([list = std::move(list), parts, post, stop = batchStop.get_token(), done] {
        for (const AppUpdate& each : list) {
            if (stop.stop_requested())
                return;
            const QString id = QString::fromStdString(each.id());
            if (parts.isRunning(*each.bundleID)) {
                post(id, {RowState::Kind::needsQuit});
                ++*done;
                continue;
            }
            post(id, {RowState::Kind::working, Stage::downloading});
            try {
                parts.install(
                    each, [&](Stage stage) { post(id, {RowState::Kind::working, stage}); }, stop);
                post(id, {RowState::Kind::installed});
            } catch (const AppUpdateInstaller::OperationCancelled&) {
                post(id, {}); // as it was before the batch
                return;
            } catch (const AppUpdateInstaller::Failure& failure) {
                if (failure.kind() == AppUpdateInstaller::Failure::Kind::appRunning)
                    post(id, {RowState::Kind::needsQuit});
                else
                    post(id,
                         {RowState::Kind::failed, Stage::downloading, describe(std::current_exception())});
            } catch (...) {
                post(id, {RowState::Kind::failed, Stage::downloading, describe(std::current_exception())});
            }
            ++*done;
        }
    });
    // Through a watcher, not a continuation: one attached after a quick batch has already ended ran
    // at once, before the rows' states had arrived.
    auto ended = std::make_shared<QPromise<void>>();
    ended->start();
    whenDone(this, worker, [this, size, done, ended] {
        installing = false;
        emit statesChanged();
        const QLocale locale = PhaseFormat::locale();
        if (const int finished = *done; finished < size)
            Announcer::announce(
                qtTrId("updates.announce.stopped").arg(locale.toString(finished), locale.toString(size)));
        else
            Announcer::announce(qtTrId("updates.announce.finished").arg(locale.toString(size)));
        ended->finish();
    });
    return ended->future();
}

QString UpdatesModel::describe(const std::exception_ptr& error) {
    using Kind = AppUpdateInstaller::Failure::Kind;
    try {
        std::rethrow_exception(error);
    } catch (const AppUpdateInstaller::Failure& failure) {
        switch (failure.kind()) {
        case Kind::swapFailed:
            return qtTrId("updates.failure.swap");
        case Kind::noAppInArchive:
            return qtTrId("updates.failure.noApp");
        case Kind::appRunning:
            return qtTrId("updates.row.needsQuit");
        case Kind::bundleIDMismatch:
            return qtTrId("updates.failure.otherApp");
        case Kind::notNewer:
            return qtTrId("updates.failure.notNewer");
        case Kind::signatureInvalid:
            return qtTrId("updates.failure.signature");
        case Kind::notNotarized:
            return qtTrId("updates.failure.notarization");
        case Kind::teamMismatch:
            return qtTrId("updates.failure.team");
        case Kind::commandFailed:
        case Kind::noDownload:
        case Kind::unsupportedArchive:
            break;
        }
    } catch (...) {
    }
    return qtTrId("updates.failure.download");
}

void UpdatesModel::storeIgnored() {
    settings.setIgnoredUpdateVersions(ignored.versions);
    notifyResultsChanged();
    emit statesChanged();
}

void UpdatesModel::ignore(const AppUpdate& update) {
    ignored.ignore(update);
    chosen.erase(update.id());
    const QString name = QString::fromStdString(update.name);
    storeIgnored();
    Announcer::announce(qtTrId("updates.announce.ignored").arg(name));
}

void UpdatesModel::restoreIgnored() {
    ignored.restore(found);
    storeIgnored();
}

void UpdatesModel::perform(const QString& id) {
    if (const AppUpdate* found = update(id))
        perform(AppUpdate(*found));
}

void UpdatesModel::toggleSelected(const QString& id) {
    if (const AppUpdate* found = update(id))
        setSelected(*found, !isSelected(*found));
}

void UpdatesModel::ignore(const QString& id) {
    if (const AppUpdate* found = update(id))
        ignore(AppUpdate(*found));
}

void UpdatesModel::requestInstallSelected() {
    if (installing)
        return;
    pendingBatch.clear();
    for (const AppUpdate& each : visibleUpdates())
        if (chosen.contains(each.id()) && isSelectable(each))
            pendingBatch.push_back(each);
    if (!pendingBatch.empty())
        emit statesChanged();
}

void UpdatesModel::confirmInstall() {
    auto list = std::move(pendingBatch);
    pendingBatch.clear();
    emit statesChanged();
    install(std::move(list));
}

void UpdatesModel::cancelInstall() {
    if (pendingBatch.empty())
        return;
    pendingBatch.clear();
    emit statesChanged();
}

void UpdatesModel::stopInstalling() {
    if (!installing || batchStop.stop_requested())
        return;
    batchStop.request_stop();
    emit statesChanged();
}

void UpdatesModel::openNotes(const QString& id) {
    if (const AppUpdate* found = update(id); found && found->notesURL)
        engine.openURL(QUrl(QString::fromStdString(found->notesURL->absoluteString())));
}

QString UpdatesModel::checkedText() const {
    if (!checked)
        return qtTrId("updates.checked.never");
    const QDateTime now = engine.now();
    if (checked->secsTo(now) < 60)
        return qtTrId("updates.checked.now");
    const auto toPoint = [](const QDateTime& date) {
        return std::chrono::system_clock::time_point(std::chrono::milliseconds(date.toMSecsSinceEpoch()));
    };
    return qtTrId("updates.checked")
        .arg(QString::fromStdString(CleanerCore::RelativeDate::string(toPoint(*checked), toPoint(now),
                                                                      CleanerCore::CoreL10n::bundle())));
}

QString UpdatesModel::installAllText() const {
    // While a batch runs the same key stops it, so keyboard focus stays where it was.
    if (installing)
        return qtTrId(batchStop.stop_requested() ? "updates.stopping" : "updates.stop");
    const int selected = selectedCount();
    return selected == 0 ? qtTrId("updates.installAll.none")
                         : qtTrId("updates.installAll").arg(PhaseFormat::locale().toString(selected));
}

QString UpdatesModel::foundSpoken() const {
    return qtTrId("updates.outdated").arg(PhaseFormat::locale().toString(pendingCount().value_or(0)));
}
