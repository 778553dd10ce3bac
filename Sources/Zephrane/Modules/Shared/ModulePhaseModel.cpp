#include "Modules/Shared/ModulePhaseModel.hpp"

#include "App/Preferences.hpp"
#include "CleanerCore/Removal/Cleaner.hpp"
#include "CleanerCore/Removal/SafetyGuard.hpp"
#include "Modules/Shared/ScanRunner.hpp"
#include "Modules/Shared/WhenDone.hpp"
#include "Painel/ByteFormat.hpp"

#include <QDir>
#include <QPromise>
#include <QThreadPool>
#include <QtConcurrent/QtConcurrentRun>

#include <unordered_map>

using CleanerCore::CleanupItem;
using CleanerCore::URL;

namespace {

// One line per category holding items that `counts`, with their scan-time sizes; none for the rest.
template <class Predicate>
std::vector<CleanupLine> linesOf(const std::vector<CleanupCategory>& categories, Predicate counts) {
    std::vector<CleanupLine> lines;
    for (const CleanupCategory& category : categories) {
        CleanupLine line{category.id, category.title, 0, 0};
        for (const CleanupItem& item : category.items)
            if (counts(item.url)) {
                ++line.count;
                line.bytes += item.size;
            }
        if (line.count > 0)
            lines.push_back(std::move(line));
    }
    return lines;
}

} // namespace

struct ModulePhaseModel::PendingScan {
    std::function<void()> adopt;
    ModulePhase phaseBefore = ModulePhase::idle;
    QPromise<void> finished;
};

ModulePhaseModel::ModulePhaseModel(Preferences& settings, QObject* parent)
    : QObject(parent), preferences(settings), removalHome(URL::file(QDir::homePath().toStdString())),
      runner(new ScanRunner(this)), selected(new CleanupSelection(this)),
      phaseActions(new ModulePhaseActions(this)) {
    phaseActions->scanAction = [this] { startScan(); };
    phaseActions->setStop([this] { stop(); });
    phaseActions->cancelConfirmAction = [this] { setConfirming(false); };
    phaseActions->confirmAction = [this] { confirm(); };
    phaseActions->doneAction = [this] { done(); };
    connect(runner, &ScanRunner::progressChanged, this, &ModulePhaseModel::progressChanged);
    connect(runner, &ScanRunner::stepFinished, this, &ModulePhaseModel::stepFinished);
    connect(runner, &ScanRunner::finished, this, &ModulePhaseModel::finishScan);
    connect(selected, &CleanupSelection::changed, this, &ModulePhaseModel::selectionChanged);
    connect(&preferences, &Preferences::cleanDestinationChanged, this, [this] {
        if (!fixedDestination())
            emit destinationChanged();
    });
}

ModulePhaseModel::~ModulePhaseModel() = default;

const ScanProgress& ModulePhaseModel::progress() const {
    return runner->progress();
}

bool ModulePhaseModel::isScanRunning() const {
    return runner->isRunning();
}

void ModulePhaseModel::setConfirming(bool on) {
    if (on && (current != ModulePhase::ready || selected->count() == 0))
        return;
    if (on == confirmingFlag)
        return;
    confirmingFlag = on;
    emit confirmingChanged();
    refreshPainelPhase();
}

CleanDestination ModulePhaseModel::destination() const {
    return fixedDestination().value_or(preferences.cleanDestination());
}

void ModulePhaseModel::setDestination(CleanDestination destination) {
    if (!fixedDestination())
        preferences.setCleanDestination(destination);
}

void ModulePhaseModel::setDestinationRaw(const QString& raw) {
    if (auto destination = CleanDestinations::fromRaw(raw))
        setDestination(*destination);
}

QFuture<void> ModulePhaseModel::scan() {
    if (current == ModulePhase::scanning || current == ModulePhase::cleaning)
        return QtFuture::makeReadyFuture();
    ScanPlan plan = scanPlan();
    pending = std::make_unique<PendingScan>();
    pending->adopt = std::move(plan.adopt);
    pending->phaseBefore = current;
    pending->finished.start();
    QFuture<void> future = pending->finished.future();
    setPhase(ModulePhase::scanning);
    runner->start(std::move(plan.units));
    return future;
}

void ModulePhaseModel::finishScan(bool stopped) {
    const std::unique_ptr<PendingScan> scan = std::move(pending);
    if (stopped) {
        // What this scan gathered is dropped; the earlier results and their selection stay.
        setPhase(scan->phaseBefore == ModulePhase::ready ? ModulePhase::ready : ModulePhase::idle);
    } else {
        if (scan->adopt)
            scan->adopt();
        std::unordered_set<URL> preselected;
        for (const CleanupItem& item : allItems())
            if (item.selectedByDefault)
                preselected.insert(item.url);
        selected->set(std::move(preselected));
        if (!scanned) {
            scanned = true;
            emit hasScannedChanged();
        }
        emit resultsChanged();
        emit selectionChanged(); // the summary follows the results even when the URLs stay the same
        setPhase(ModulePhase::ready);
    }
    scan->finished.finish();
}

void ModulePhaseModel::scanOnFirstVisit() {
    if (automaticScanMade || scanned || current != ModulePhase::idle)
        return;
    automaticScanMade = true;
    startScan();
}

void ModulePhaseModel::stop() {
    runner->stop();
}

ModulePhaseModel::RemovalJob ModulePhaseModel::removalJob(std::vector<CleanupItem> items,
                                                          CleanerCore::RemovalMode mode) const {
    std::unordered_map<URL, std::vector<CleanupItem>> followers;
    for (const CleanupItem& item : items)
        if (std::vector<CleanupItem> with = removedWith(item); !with.empty())
            followers.emplace(item.url, std::move(with));
    CleanerCore::Cleaner cleaner(mode, removalHome, CleanerCore::SafetyGuard::runningAppBundle());
    return [cleaner, items = std::move(items), followers = std::move(followers)] {
        CleanerCore::RemovalReport report = cleaner.remove(items);
        std::vector<CleanupItem> after;
        for (const URL& gone : report.removed)
            if (auto found = followers.find(gone); found != followers.end())
                after.insert(after.end(), found->second.begin(), found->second.end());
        if (!after.empty()) {
            const CleanerCore::RemovalReport more = cleaner.remove(after);
            report.bytes += more.bytes;
            report.failures.insert(report.failures.end(), more.failures.begin(), more.failures.end());
        }
        return report;
    };
}

QFuture<void> ModulePhaseModel::clean(CleanerCore::RemovalMode mode) {
    std::vector<CleanupItem> items = selectedItems();
    if (items.empty() || current != ModulePhase::ready || !readyToRemove())
        return QtFuture::makeReadyFuture();
    const auto started = std::chrono::steady_clock::now();
    std::vector<CleanupCategory> before = categories();
    setPhase(ModulePhase::cleaning);

    auto finished = std::make_shared<QPromise<void>>();
    finished->start();
    QFuture<void> future = finished->future();
    whenDone(this, QtConcurrent::run(QThreadPool::globalInstance(), removalJob(std::move(items), mode)),
             [this, before = std::move(before), started, finished](const CleanerCore::RemovalReport& removal) {
                 finishClean(removal, before, started);
                 finished->finish();
             });
    return future;
}

void ModulePhaseModel::finishClean(const CleanerCore::RemovalReport& removal,
                                   const std::vector<CleanupCategory>& before,
                                   std::chrono::steady_clock::time_point started) {
    const std::unordered_set<URL> removed(removal.removed.begin(), removal.removed.end());
    std::vector<CleanupLine> lines = linesOf(before, [&](const URL& url) { return removed.contains(url); });
    dropRemoved(removed);
    emit resultsChanged();
    selected->dropIf([&](const URL& url) { return removed.contains(url); });
    report = removal;
    const auto elapsed =
        std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - started);
    lastOutcome = CleanupOutcome::from(removal, std::move(lines), elapsed);
    emit outcomeChanged();
    setPhase(ModulePhase::done);
}

void ModulePhaseModel::confirm() {
    if (!confirmingFlag)
        return;
    // The sheet closes straight into cleaning, never through the results in between.
    confirmingFlag = false;
    emit confirmingChanged();
    clean(CleanDestinations::removalMode(destination()));
    refreshPainelPhase();
}

void ModulePhaseModel::done() {
    if (current == ModulePhase::done)
        setPhase(ModulePhase::ready);
}

std::vector<CleanupItem> ModulePhaseModel::allItems() const {
    std::vector<CleanupItem> items;
    for (CleanupCategory& category : categories())
        items.insert(items.end(), std::make_move_iterator(category.items.begin()),
                     std::make_move_iterator(category.items.end()));
    return items;
}

std::vector<CleanupItem> ModulePhaseModel::selectedItems() const {
    std::vector<CleanupItem> items = allItems();
    std::erase_if(items, [this](const CleanupItem& item) { return !selected->contains(item.url); });
    return items;
}

CleanupSummary ModulePhaseModel::summary() const {
    return {linesOf(categories(), [this](const URL& url) { return selected->contains(url); })};
}

int ModulePhaseModel::itemCount() const {
    int count = 0;
    for (const CleanupCategory& category : categories())
        count += static_cast<int>(category.items.size());
    return count;
}

qint64 ModulePhaseModel::foundBytes() const {
    qint64 total = 0;
    for (const CleanupCategory& category : categories())
        total += CleanerCore::totalSize(category.items);
    return total;
}

QString ModulePhaseModel::foundSpoken() const {
    return ByteFormat::spoken(static_cast<double>(foundBytes()));
}

void ModulePhaseModel::notifyResultsChanged() {
    // Items that left the results leave the selection too.
    std::unordered_set<URL> present;
    for (const CleanupItem& item : allItems())
        present.insert(item.url);
    selected->dropIf([&](const URL& url) { return !present.contains(url); });
    emit resultsChanged();
    refreshPainelPhase();
}

void ModulePhaseModel::setPhase(ModulePhase phase) {
    if (phase != current) {
        current = phase;
        if (phase != ModulePhase::ready && confirmingFlag) {
            confirmingFlag = false;
            emit confirmingChanged();
        }
        emit phaseChanged();
    }
    refreshPainelPhase();
}

void ModulePhaseModel::refreshPainelPhase() {
    const PainelPhase next = PainelPhases::from(current, hasResults(), confirmingFlag);
    if (next == shown)
        return;
    shown = next;
    emit painelPhaseChanged();
}

QString ModulePhaseModel::destinationTitle() const {
    return QString::fromStdString(CleanerCore::title(CleanDestinations::removalMode(destination())));
}
