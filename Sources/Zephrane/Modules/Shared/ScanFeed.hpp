#pragma once

#include <QMutex>
#include <QString>

#include <optional>

// The thread-safe mailbox through which a running unit of work tells what it is reading and how
// much it found so far. Workers write; the model reads it on the interface thread, on a timer, so
// a busy scan cannot flood the event queue.
class ScanFeed {
public:
    void reading(const QString& shortPath);
    void found(int count); // the unit's running total, not an increment

    struct Snapshot {
        std::optional<QString> path; // present when it changed since the last take
        int found = 0;
    };
    Snapshot take();
    void reset();

private:
    QMutex mutex;
    std::optional<QString> path;
    int foundSoFar = 0;
};
