#include "Modules/Trash/TrashModel.hpp"

#include "App/Announcer.hpp"
#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "CleanerCore/Platform/MountTable.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"
#include "CleanerCore/Trash/TrashDirectorySizes.hpp"
#include "CleanerCore/Trash/TrashInfo.hpp"
#include "Modules/Shared/WhenDone.hpp"
#include "Modules/Trash/TrashRow.hpp"
#include "Modules/Trash/TrashText.hpp"
#include "Painel/ByteFormat.hpp"

#include <QDir>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QPromise>
#include <QThreadPool>
#include <QTimer>
#include <QtConcurrent/QtConcurrentRun>

#include <algorithm>
#include <fcntl.h>
#include <unistd.h>

using CleanerCore::CleanupItem;
using CleanerCore::TrashBin;
using CleanerCore::TrashEntry;
using CleanerCore::URL;

namespace {

std::int64_t sizeOf(const std::vector<TrashEntry>& entries) {
    std::int64_t total = 0;
    for (const TrashEntry& entry : entries)
        total += entry.size;
    return total;
}

QFuture<void> finished() {
    return QtFuture::makeReadyFuture();
}

} // namespace

std::vector<TrashBin> TrashModel::mountedBins() {
    return TrashBin::otherVolumes(CleanerCore::Platform::MountTable::current(), ::getuid());
}

TrashModel::TrashModel(Preferences& preferences, QObject* parent)
    : ModulePhaseModel(preferences, parent), bin(URL::file(QDir::homePath().toStdString())),
      otherBins(mountedBins), watcher(new QFileSystemWatcher(this)), settleTimer(new QTimer(this)) {
    // A file manager moving many items sends a burst of changes: read once it has calmed down.
    settleTimer->setSingleShot(true);
    settleTimer->setInterval(250);
    connect(settleTimer, &QTimer::timeout, this, &TrashModel::changedOnDisk);
    connect(watcher, &QFileSystemWatcher::directoryChanged, settleTimer, qOverload<>(&QTimer::start));
    // The shared screens' scan keys read the way every other read does, never beside one.
    actions()->scanAction = [this] { rescan(); };
}

void TrashModel::setBins(TrashBin home, OtherBins othersSource) {
    bin = std::move(home);
    otherBins = std::move(othersSource);
    setRemovalHome(bin.home);
}

TrashModel::Read TrashModel::readBins(const TrashBin& home, const OtherBins& othersSource) {
    Read read;
    read.home = home.entries();
    if (!read.home)
        return read; // without the home trash nothing else is shown either
    read.startupName = home.volumeName();
    read.otherBins = othersSource ? othersSource() : std::vector<TrashBin>{};
    for (const TrashBin& other : read.otherBins) {
        std::optional<std::vector<TrashEntry>> entries = other.entries();
        read.contents.push_back(entries ? std::move(*entries) : std::vector<TrashEntry>{});
        read.names.push_back(read.contents.back().empty() ? std::string() : other.volumeName());
    }
    return read;
}

void TrashModel::take(Read read) {
    const Access before = accessState;
    homeEntries.clear();
    otherContents.clear();
    others.clear();
    allOtherBins = std::move(read.otherBins);
    if (!read.home) {
        accessState = Access::denied;
    } else {
        accessState = Access::granted;
        homeEntries = std::move(*read.home);
        // The root volume without a label has no name worth showing.
        startupVolume = read.startupName.empty() || read.startupName == "/"
                            ? qtTrId("trash.bins.startup")
                            : QString::fromStdString(read.startupName);
        for (std::size_t index = 0; index < allOtherBins.size(); ++index) {
            std::vector<TrashEntry>& entries = read.contents[index];
            if (entries.empty())
                continue;
            others.push_back({QString::fromStdString(read.names[index]), sizeOf(entries),
                              static_cast<int>(entries.size())});
            otherContents.emplace_back(allOtherBins[index], std::move(entries));
        }
    }
    if (accessState != before)
        emit accessChanged();
    watchBins();
}

QFuture<void> TrashModel::refresh(bool showsProgress, bool announces) {
    if (readingNow || phase() == ModulePhase::cleaning || phase() == ModulePhase::scanning)
        return finished();
    setReading(true);
    auto promise = std::make_shared<QPromise<void>>();
    promise->start();
    QFuture<void> future = promise->future();
    // A first read always shows progress: there is nothing on the screen yet to change in place.
    if (showsProgress || !hasScanned()) {
        whenDone(this, scan(), [this, announces, promise] {
            finishReading(announces);
            promise->finish();
        });
        return future;
    }
    whenDone(this,
             QtConcurrent::run(QThreadPool::globalInstance(),
                               [home = bin, source = otherBins] { return readBins(home, source); }),
             [this, announces, promise](const Read& read) {
                 // An emptying that began meanwhile reads again when it ends; this read is stale.
                 if (phase() != ModulePhase::cleaning) {
                     take(read);
                     notifyResultsChanged();
                 }
                 finishReading(announces);
                 promise->finish();
             });
    return future;
}

void TrashModel::finishReading(bool announces) {
    setReading(false);
    if (announces)
        Announcer::announce(announcement());
    if (changeMissed) {
        changeMissed = false;
        refresh(false);
    }
}

void TrashModel::refreshOnAppearing() {
    refresh(!hasScanned(), true);
}

void TrashModel::changedOnDisk() {
    if (readingNow) {
        changeMissed = true;
        return;
    }
    refresh(false);
}

void TrashModel::setReading(bool on) {
    if (on == readingNow)
        return;
    readingNow = on;
    emit isReadingChanged();
}

void TrashModel::watchBins() {
    // The files/ folder of each bin, or the bin itself until it has one.
    QStringList wanted;
    const auto add = [&](const TrashBin& each) {
        for (const URL& folder : {each.filesURL(), each.url})
            if (const QString path = QString::fromStdString(folder.path()); QFileInfo(path).isDir()) {
                wanted.push_back(path);
                return;
            }
    };
    if (accessState == Access::granted || accessState == Access::denied)
        add(bin);
    for (const TrashBin& other : allOtherBins)
        add(other);
    QStringList gone;
    for (const QString& path : watcher->directories())
        if (!wanted.contains(path))
            gone.push_back(path);
    if (!gone.isEmpty())
        watcher->removePaths(gone);
    QStringList fresh;
    for (const QString& path : wanted)
        if (!watcher->directories().contains(path))
            fresh.push_back(path);
    if (!fresh.isEmpty())
        watcher->addPaths(fresh);
}

ScanPlan TrashModel::scanPlan() {
    auto read = std::make_shared<Read>();
    ScanPlan plan;
    plan.units.push_back({QStringLiteral("trash"), qtTrId("channel.trash.title"),
                          QString::fromStdString(bin.url.path()),
                          [home = bin, source = otherBins, read](std::stop_token, ScanFeed&) {
                              *read = readBins(home, source);
                              ScanUnitResult result;
                              if (read->home) {
                                  result.bytes = sizeOf(*read->home);
                                  result.itemCount = static_cast<int>(read->home->size());
                                  for (const auto& entries : read->contents) {
                                      result.bytes += sizeOf(entries);
                                      result.itemCount += static_cast<int>(entries.size());
                                  }
                              }
                              return result;
                          }});
    plan.adopt = [this, read] { take(std::move(*read)); };
    return plan;
}

std::vector<CleanupCategory> TrashModel::categories() const {
    CleanupCategory all{QStringLiteral("trash"), qtTrId("trash.report.line"), {}};
    const auto add = [&](const std::vector<TrashEntry>& entries) {
        for (const TrashEntry& entry : entries)
            all.items.push_back({entry.url, entry.size, std::nullopt, true});
    };
    add(homeEntries);
    for (const auto& [other, entries] : otherContents)
        add(entries);
    if (all.items.empty())
        return {};
    return {std::move(all)};
}

void TrashModel::dropRemoved(const std::unordered_set<URL>& removed) {
    const auto gone = [&](const TrashEntry& entry) { return removed.contains(entry.url); };
    std::erase_if(homeEntries, gone);
    for (std::size_t index = 0; index < otherContents.size(); ++index) {
        std::erase_if(otherContents[index].second, gone);
        others[index].bytes = sizeOf(otherContents[index].second);
        others[index].count = static_cast<int>(otherContents[index].second.size());
    }
}

std::vector<CleanupItem> TrashModel::removedWith(const CleanupItem& item) const {
    // files/NAME is described by info/NAME.trashinfo; without it the item could not be restored,
    // so it goes only once the item has.
    const URL trash = item.url.deletingLastPathComponent().deletingLastPathComponent();
    const URL info =
        trash.appending("info").appending(CleanerCore::TrashInfo::fileName(item.url.lastPathComponent()));
    return {{info, 0, std::nullopt, true}};
}

ModulePhaseModel::RemovalJob TrashModel::removalJob(std::vector<CleanupItem> items,
                                                    CleanerCore::RemovalMode mode) const {
    std::vector<TrashBin> bins{bin};
    for (const auto& [other, entries] : otherContents)
        bins.push_back(other);
    return [job = ModulePhaseModel::removalJob(std::move(items), mode), bins = std::move(bins)] {
        CleanerCore::RemovalReport report = job();
        // File managers trust the folder sizes they cached; those of removed folders must go.
        for (const TrashBin& each : bins) {
            using CleanerCore::Platform::FileDescriptor;
            const FileDescriptor trash(CleanerCore::Platform::openDirectory(AT_FDCWD, each.url.path().c_str()));
            const FileDescriptor files(
                CleanerCore::Platform::openDirectory(AT_FDCWD, each.filesURL().path().c_str()));
            if (trash && files)
                CleanerCore::TrashDirectorySizes::dropMissing(trash.get(), files.get());
        }
        return report;
    };
}

QFuture<void> TrashModel::emptyTrash() {
    if (phase() != ModulePhase::ready || itemCount() == 0)
        return finished();
    // Everything goes: the whole trash is the selection.
    std::unordered_set<URL> everything;
    for (const CleanupItem& item : allItems())
        everything.insert(item.url);
    selection()->set(std::move(everything));
    auto promise = std::make_shared<QPromise<void>>();
    promise->start();
    QFuture<void> future = promise->future();
    whenDone(this, clean(CleanerCore::RemovalMode::permanent), [this, promise] {
        // What resisted, or arrived meanwhile, shows under the report without a scan screen.
        if (readingNow) {
            changeMissed = true;
            promise->finish();
            return;
        }
        whenDone(this, refresh(false), [promise] { promise->finish(); });
    });
    return future;
}

std::optional<qint64> TrashModel::reading() const {
    if (accessState == Access::granted && (phase() == ModulePhase::ready || phase() == ModulePhase::done))
        return foundBytes();
    return std::nullopt;
}

QString TrashModel::accessRaw() const {
    switch (accessState) {
    case Access::granted:
        return QStringLiteral("granted");
    case Access::denied:
        return QStringLiteral("denied");
    case Access::unknown:
        break;
    }
    return QStringLiteral("unknown");
}

QVariantList TrashModel::rowValues() const {
    const auto now = std::chrono::system_clock::now();
    QVariantList rows;
    const std::size_t shown = std::min<std::size_t>(homeEntries.size(), listedRows);
    for (std::size_t index = 0; index < shown; ++index)
        rows.push_back(QVariant::fromValue(TrashRow::of(homeEntries[index], now)));
    return rows;
}

int TrashModel::restCount() const {
    return std::max(0, static_cast<int>(homeEntries.size()) - listedRows);
}

QString TrashModel::restText() const {
    return qtTrId("trash.list.rest").arg(TrashText::items(restCount()));
}

QVariantList TrashModel::otherVolumeValues() const {
    QVariantList values;
    for (const VolumeTrash& volume : others)
        values.push_back(QVariant::fromValue(volume));
    return values;
}

VolumeTrash TrashModel::startup() const {
    return {startupVolume, sizeOf(homeEntries), static_cast<int>(homeEntries.size())};
}

QString TrashModel::itemsText() const {
    return TrashText::items(itemCount());
}

QString TrashModel::confirmMessage() const {
    return qtTrId("trash.empty.confirm.message")
        .arg(itemsText(), ByteFormat::text(static_cast<double>(foundBytes())));
}

QString TrashModel::announcement() const {
    if (accessState == Access::denied)
        return qtTrId("trash.announce.noAccess");
    if (itemCount() == 0)
        return qtTrId("trash.announce.empty");
    return qtTrId("trash.announce.reading").arg(itemsText(), ByteFormat::spoken(static_cast<double>(foundBytes())));
}
