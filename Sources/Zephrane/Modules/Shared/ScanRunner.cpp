#include "Modules/Shared/ScanRunner.hpp"

#include "Modules/Shared/WhenDone.hpp"

#include <QThreadPool>
#include <QtConcurrent/QtConcurrentRun>

// One scan in flight. The worker side only ever sees the feed and the stop token.
struct ScanRunner::Run {
    std::stop_source stop;
    std::vector<ScanUnit> units;
    std::vector<std::size_t> firstTile; // of each unit
    std::size_t unit = 0;               // the unit under way
    int countBefore = 0; // items of the finished units
    std::shared_ptr<ScanFeed> feed = std::make_shared<ScanFeed>();
};

ScanRunner::ScanRunner(QObject* parent) : QObject(parent) {
    feedTimer.setInterval(100);
    connect(&feedTimer, &QTimer::timeout, this, &ScanRunner::pollFeed);
}

ScanRunner::~ScanRunner() {
    // Workers hold no reference to the runner; they only need to be told to give up.
    stop();
}

void ScanRunner::start(std::vector<ScanUnit> units) {
    run = std::make_shared<Run>();
    run->units = std::move(units);
    current = ScanProgress{};
    for (const ScanUnit& unit : run->units) {
        run->firstTile.push_back(current.steps.size());
        if (unit.tiles.empty())
            current.steps.push_back({unit.id, unit.title, ScanStep::State::waiting(), std::nullopt});
        for (const ScanUnit::Tile& tile : unit.tiles)
            current.steps.push_back({tile.id, tile.title, ScanStep::State::waiting(), std::nullopt});
    }
    current.startedAt = QDateTime::currentDateTime();
    emit progressChanged();
    feedTimer.start();
    runUnit(0);
}

void ScanRunner::stop() {
    if (run)
        run->stop.request_stop();
}

void ScanRunner::runUnit(std::size_t index) {
    if (run->stop.stop_requested() || index == run->units.size()) {
        const bool stopped = run->stop.stop_requested();
        feedTimer.stop();
        run.reset();
        current.currentPath.reset();
        emit progressChanged();
        emit finished(stopped);
        return;
    }
    const ScanUnit& unit = run->units[index];
    run->unit = index;
    if (unit.tiles.empty())
        current.steps[run->firstTile[index]].state = ScanStep::State::scanning();
    current.currentPath = unit.path;
    run->feed->reset();
    emit progressChanged();

    auto work = [work = unit.work, token = run->stop.get_token(), feed = run->feed]() -> ScanUnitResult {
        return work ? work(token, *feed) : ScanUnitResult{};
    };
    whenDone(this, QtConcurrent::run(QThreadPool::globalInstance(), std::move(work)),
             [this, index](ScanUnitResult result) {
                 if (run->units[index].tiles.empty()) {
                     ScanStep& step = current.steps[run->firstTile[index]];
                     step.state = ScanStep::State::done(result.bytes);
                     step.doneText = result.doneText;
                     emit stepFinished(step.title);
                 } else {
                     applyTiles(run->feed->take(), true);
                 }
                 run->countBefore += result.itemCount;
                 current.itemCount = run->countBefore;
                 emit progressChanged();
                 runUnit(index + 1);
             });
}

void ScanRunner::pollFeed() {
    if (!run)
        return;
    const ScanFeed::Snapshot snapshot = run->feed->take();
    const int count = run->countBefore + snapshot.found;
    const bool pathChanged = snapshot.path && snapshot.path != current.currentPath;
    const bool tilesChanged = !run->units[run->unit].tiles.empty() && applyTiles(snapshot, false);
    if (!pathChanged && !tilesChanged && count == current.itemCount)
        return;
    if (pathChanged)
        current.currentPath = snapshot.path;
    current.itemCount = count;
    emit progressChanged();
}

bool ScanRunner::applyTiles(const ScanFeed::Snapshot& snapshot, bool unitDone) {
    const std::size_t first = run->firstTile[run->unit];
    const std::size_t count = run->units[run->unit].tiles.size();
    bool changed = false;
    for (std::size_t tile = 0; tile < count; ++tile) {
        ScanStep& step = current.steps[first + tile];
        const auto found = snapshot.tileBytes.find(static_cast<int>(tile));
        const std::int64_t bytes = found == snapshot.tileBytes.end() ? 0 : found->second;
        // Tiles before the one entered are done, that one runs; all are done with the unit.
        const bool done = unitDone || static_cast<int>(tile) < snapshot.entered;
        const ScanStep::State state = done ? ScanStep::State::done(bytes)
                                      : static_cast<int>(tile) == snapshot.entered ? ScanStep::State::scanning()
                                                                                   : ScanStep::State::waiting();
        if (state == step.state)
            continue;
        changed = true;
        const bool finished = state.isDone() && !step.state.isDone();
        step.state = state;
        if (finished)
            emit stepFinished(step.title);
    }
    return changed;
}
