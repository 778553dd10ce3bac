#pragma once

#include "Modules/Shared/ScanProgress.hpp"
#include "Modules/Shared/ScanFeed.hpp"
#include "Modules/Shared/ScanUnit.hpp"

#include <QObject>
#include <QTimer>

#include <memory>
#include <stop_token>

// Runs the units of one scan one after another on the thread pool and keeps the scanning panel's
// progress: a tile per unit, the running count and the path being read (polled from the units'
// feed on a timer, so a busy unit cannot flood the event queue). Knows nothing of the channel.
class ScanRunner : public QObject {
    Q_OBJECT

public:
    explicit ScanRunner(QObject* parent = nullptr);
    ~ScanRunner() override;

    bool isRunning() const { return bool(run); }
    const ScanProgress& progress() const { return current; }

    // Starts with every tile waiting. Not to be called while running.
    void start(std::vector<ScanUnit> units);
    // The unit under way runs to its end; the next one does not start.
    void stop();

signals:
    void progressChanged();
    // A unit finished: its tile's title, for the announcement.
    void stepFinished(const QString& title);
    // After the last unit, or after the unit under way when stopped.
    void finished(bool stopped);

private:
    struct Run;
    void runUnit(std::size_t index);
    void pollFeed();
    // Moves the tiles of a unit that has several; answers whether any changed.
    bool applyTiles(const ScanFeed::Snapshot& snapshot, bool unitDone);

    std::shared_ptr<Run> run;
    ScanProgress current;
    QTimer feedTimer;
};
