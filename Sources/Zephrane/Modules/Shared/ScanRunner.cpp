#include "Modules/Shared/ScanRunner.hpp"

#include "Modules/Shared/WhenDone.hpp"

#include <QThreadPool>
#include <QtConcurrent/QtConcurrentRun>

// One scan in flight. The worker side only ever sees the feed and the stop token.
struct ScanRunner::Run {
    std::stop_source stop;
    std::vector<ScanUnit> units;
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
    for (const ScanUnit& unit : run->units)
        current.steps.push_back({unit.id, unit.title, ScanStep::State::waiting(), std::nullopt});
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
    current.steps[index].state = ScanStep::State::scanning();
    current.currentPath = unit.path;
    run->feed->reset();
    emit progressChanged();

    auto work = [work = unit.work, token = run->stop.get_token(), feed = run->feed]() -> ScanUnitResult {
        return work ? work(token, *feed) : ScanUnitResult{};
    };
    whenDone(this, QtConcurrent::run(QThreadPool::globalInstance(), std::move(work)),
             [this, index](ScanUnitResult result) {
                 ScanStep& step = current.steps[index];
                 step.state = ScanStep::State::done(result.bytes);
                 step.doneText = result.doneText;
                 run->countBefore += result.itemCount;
                 current.itemCount = run->countBefore;
                 emit progressChanged();
                 emit stepFinished(step.title);
                 runUnit(index + 1);
             });
}

void ScanRunner::pollFeed() {
    if (!run)
        return;
    const ScanFeed::Snapshot snapshot = run->feed->take();
    const int count = run->countBefore + snapshot.found;
    const bool pathChanged = snapshot.path && snapshot.path != current.currentPath;
    if (!pathChanged && count == current.itemCount)
        return;
    if (pathChanged)
        current.currentPath = snapshot.path;
    current.itemCount = count;
    emit progressChanged();
}
