#include "Modules/Shared/ModulePhaseModel.hpp"

#include "CleanerCore/Removal/Cleaner.hpp"
#include "CleanerCore/Removal/SafetyGuard.hpp"
#include "Modules/Shared/PhaseFormat.hpp"
#include "Painel/ByteFormat.hpp"

#include <QDir>
#include <QPromise>
#include <QThreadPool>
#include <QtConcurrent/QtConcurrentRun>

using CleanerCore::CleanupItem;
using CleanerCore::URL;

namespace {

QString pathText(const URL& url) {
    return QString::fromStdString(url.path());
}

// A size for the views: the count for LED digits, and the same as a line of text.
QVariantMap bytesMap(std::int64_t count) {
    const auto value = static_cast<double>(count);
    return {{"bytes", value}, {"text", ByteFormat::text(value)}};
}

QVariantList linesList(const std::vector<CleanupLine>& lines) {
    QVariantList list;
    for (const CleanupLine& line : lines)
        list.append(QVariantMap{
            {"id", line.id}, {"title", line.title}, {"count", line.count}, {"size", bytesMap(line.bytes)}});
    return list;
}

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

// One scan in flight. The worker side only ever sees the feed and the stop token.
struct ModulePhaseModel::ScanRun {
    QPromise<void> promise;
    std::stop_source stop;
    std::vector<ScanUnit> units;
    std::vector<std::any> payloads;
    ModulePhase phaseBefore = ModulePhase::idle;
    int countBefore = 0; // items of the finished units
    std::shared_ptr<ScanFeed> feed = std::make_shared<ScanFeed>();
};

ModulePhaseModel::ModulePhaseModel(QObject* parent)
    : QObject(parent), chosenDestination(CleanDestinations::stored()),
      removalHome(URL::file(QDir::homePath().toStdString())), phaseActions(new ModulePhaseActions(this)) {
    phaseActions->scanAction = [this] { startScan(); };
    phaseActions->setStop([this] { stop(); });
    phaseActions->cancelConfirmAction = [this] { setConfirming(false); };
    phaseActions->confirmAction = [this] { confirm(); };
    phaseActions->doneAction = [this] { done(); };
    feedTimer.setInterval(100);
    connect(&feedTimer, &QTimer::timeout, this, &ModulePhaseModel::pollFeed);
}

ModulePhaseModel::~ModulePhaseModel() {
    // Workers hold no reference to the model; they only need to be told to give up.
    if (scanTask)
        scanTask->stop.request_stop();
}

void ModulePhaseModel::setConfirming(bool on) {
    if (on && (current != ModulePhase::ready || selected.empty()))
        return;
    if (on == confirmingFlag)
        return;
    if (on) // the preference may have changed since the last sheet
        setDestination(CleanDestinations::stored());
    confirmingFlag = on;
    emit confirmingChanged();
    refreshPainelPhase();
}

void ModulePhaseModel::setDestination(CleanDestination destination) {
    if (destination == chosenDestination)
        return;
    chosenDestination = destination;
    CleanDestinations::store(destination);
    emit destinationChanged();
}

void ModulePhaseModel::setDestinationRaw(const QString& raw) {
    if (auto destination = CleanDestinations::fromRaw(raw))
        setDestination(*destination);
}

QFuture<void> ModulePhaseModel::scan() {
    if (current == ModulePhase::scanning || current == ModulePhase::cleaning)
        return QtFuture::makeReadyFuture();
    auto run = std::make_shared<ScanRun>();
    run->promise.start();
    run->units = scanUnits();
    run->phaseBefore = current;
    scanTask = run;

    scanProgress = ScanProgress{};
    for (const ScanUnit& unit : run->units)
        scanProgress.steps.push_back({unit.id, unit.title, ScanStep::State::waiting(), std::nullopt});
    scanProgress.startedAt = QDateTime::currentDateTime();
    emit progressChanged();
    setPhase(ModulePhase::scanning);
    feedTimer.start();

    QFuture<void> future = run->promise.future();
    runUnit(run, 0);
    return future;
}

void ModulePhaseModel::runUnit(const std::shared_ptr<ScanRun>& run, std::size_t index) {
    if (run->stop.stop_requested() || index == run->units.size()) {
        finishScan(run, run->stop.stop_requested());
        return;
    }
    const ScanUnit& unit = run->units[index];
    scanProgress.steps[index].state = ScanStep::State::scanning();
    scanProgress.currentPath = unit.path;
    run->feed->reset();
    emit progressChanged();

    auto work = [work = unit.work, token = run->stop.get_token(), feed = run->feed]() -> ScanUnitResult {
        if (!work)
            return {};
        return work(token, *feed);
    };
    whenDone(QtConcurrent::run(QThreadPool::globalInstance(), std::move(work)),
             [this, run, index](ScanUnitResult result) {
                 ScanStep& step = scanProgress.steps[index];
                 step.state = ScanStep::State::done(result.bytes);
                 step.doneText = result.doneText;
                 run->countBefore += result.itemCount;
                 scanProgress.itemCount = run->countBefore;
                 run->payloads.push_back(std::move(result.payload));
                 emit progressChanged();
                 emit stepFinished(step.title);
                 runUnit(run, index + 1);
             });
}

void ModulePhaseModel::pollFeed() {
    if (!scanTask)
        return;
    const ScanFeed::Snapshot snapshot = scanTask->feed->take();
    const int count = scanTask->countBefore + snapshot.found;
    const bool pathChanged = snapshot.path && snapshot.path != scanProgress.currentPath;
    if (!pathChanged && count == scanProgress.itemCount)
        return;
    if (pathChanged)
        scanProgress.currentPath = snapshot.path;
    scanProgress.itemCount = count;
    emit progressChanged();
}

void ModulePhaseModel::finishScan(const std::shared_ptr<ScanRun>& run, bool cancelled) {
    feedTimer.stop();
    scanTask.reset();
    scanProgress.currentPath.reset();
    emit progressChanged();
    if (cancelled) {
        // What this scan gathered is dropped; the earlier results and their selection stay.
        setPhase(run->phaseBefore == ModulePhase::ready ? ModulePhase::ready : ModulePhase::idle);
    } else {
        adoptResults(std::move(run->payloads));
        std::unordered_set<URL> preselected;
        for (const CleanupItem& item : allItems())
            if (item.selectedByDefault)
                preselected.insert(item.url);
        selected = std::move(preselected);
        if (!scanned) {
            scanned = true;
            emit hasScannedChanged();
        }
        emit resultsChanged();
        emit selectionChanged();
        setPhase(ModulePhase::ready);
    }
    run->promise.finish();
}

void ModulePhaseModel::scanOnFirstVisit() {
    if (automaticScanMade || scanned || current != ModulePhase::idle)
        return;
    automaticScanMade = true;
    startScan();
}

void ModulePhaseModel::stop() {
    if (scanTask)
        scanTask->stop.request_stop();
}

QFuture<void> ModulePhaseModel::clean(CleanerCore::RemovalMode mode) {
    std::vector<CleanupItem> items = selectedItems();
    if (items.empty() || current != ModulePhase::ready)
        return QtFuture::makeReadyFuture();
    const auto started = std::chrono::steady_clock::now();
    std::vector<CleanupCategory> before = categories();
    setPhase(ModulePhase::cleaning);

    CleanerCore::Cleaner cleaner(mode, removalHome, CleanerCore::SafetyGuard::runningAppBundle());
    auto finished = std::make_shared<QPromise<void>>();
    finished->start();
    QFuture<void> future = finished->future();
    whenDone(
        QtConcurrent::run(QThreadPool::globalInstance(),
                          [cleaner, items = std::move(items)] { return cleaner.remove(items); }),
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
    std::erase_if(selected, [&](const URL& url) { return removed.contains(url); });
    emit selectionChanged();
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
    clean(CleanDestinations::removalMode(chosenDestination));
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
    std::erase_if(items, [this](const CleanupItem& item) { return !selected.contains(item.url); });
    return items;
}

CleanupSummary ModulePhaseModel::summary() const {
    return {linesOf(categories(), [this](const URL& url) { return selected.contains(url); })};
}

void ModulePhaseModel::setSelection(std::unordered_set<URL> urls) {
    if (urls == selected)
        return;
    selected = std::move(urls);
    emit selectionChanged();
}

bool ModulePhaseModel::isSelected(const QString& path) const {
    return selected.contains(URL::file(path.toStdString()));
}

void ModulePhaseModel::setSelected(const QString& path, bool on) {
    const URL url = URL::file(path.toStdString());
    if (on ? selected.insert(url).second : selected.erase(url) > 0)
        emit selectionChanged();
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

void ModulePhaseModel::notifyResultsChanged() {
    // Items that left the results leave the selection too.
    std::unordered_set<URL> present;
    for (const CleanupItem& item : allItems())
        present.insert(item.url);
    const auto removed = std::erase_if(selected, [&](const URL& url) { return !present.contains(url); });
    emit resultsChanged();
    if (removed > 0)
        emit selectionChanged();
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

QVariantMap ModulePhaseModel::progressMap() const {
    QVariantList steps;
    for (const ScanStep& step : scanProgress.steps)
        steps.append(QVariantMap{{"id", step.id},
                                 {"title", step.title},
                                 {"state", step.state.rawValue()},
                                 {"size", bytesMap(step.state.bytes)},
                                 {"doneText", step.doneText.value_or(QString())}});
    return {{"steps", steps},
            {"itemCount", scanProgress.itemCount},
            {"currentPath", scanProgress.currentPath.value_or(QString())},
            {"startedAt", scanProgress.startedAt},
            {"doneCount", scanProgress.doneCount()},
            {"stepCount", static_cast<int>(scanProgress.steps.size())}};
}

QVariantMap ModulePhaseModel::summaryMap() const {
    const CleanupSummary lines = summary();
    return {{"lines", linesList(lines.lines)}, {"count", lines.count()}, {"size", bytesMap(lines.bytes())}};
}

QVariantMap ModulePhaseModel::outcomeMap() const {
    if (!lastOutcome)
        return {};
    QVariantList failures;
    for (const CleanerCore::RemovalFailure& failure : lastOutcome->failures)
        failures.append(QVariantMap{{"name", QString::fromStdString(failure.url.lastPathComponent())},
                                    {"path", pathText(failure.url)},
                                    {"reason", QString::fromStdString(failure.reason)}});
    return {{"lines", linesList(lastOutcome->lines)},
            {"size", bytesMap(lastOutcome->bytes)},
            {"duration", PhaseFormat::duration(lastOutcome->duration)},
            {"destination", CleanDestinations::rawValue(lastOutcome->destination)},
            {"failures", failures}};
}

QString ModulePhaseModel::destinationTitle() const {
    return QString::fromStdString(CleanerCore::title(CleanDestinations::removalMode(chosenDestination)));
}

QString ModulePhaseModel::elapsedText() const {
    if (!scanProgress.startedAt.isValid())
        return PhaseFormat::clock(std::chrono::seconds(0));
    return PhaseFormat::clock(
        std::chrono::seconds(scanProgress.startedAt.secsTo(QDateTime::currentDateTime())));
}

QString ModulePhaseModel::countText(int count) const {
    return QStringLiteral("%1 %2").arg(PhaseFormat::locale().toString(count),
                                       count == 1 ? qtTrId("phase.scan.unit.one")
                                                  : qtTrId("phase.scan.unit.other"));
}
