#pragma once

#include <QMutex>
#include <QString>

#include <cstdint>
#include <map>
#include <optional>

// The thread-safe mailbox through which a running unit of work tells what it is reading and how
// much it found so far. Workers write; the model reads it on the interface thread, on a timer, so
// a busy scan cannot flood the event queue.
class ScanFeed {
public:
    void reading(const QString& shortPath);
    void found(int count); // the unit's running total, not an increment
    // For a unit that shows as several tiles (one walk over several areas): the tile it works in
    // now, and bytes found in a tile. Tiles are counted from the unit's first.
    void enter(int tile);
    void add(int tile, std::int64_t bytes);

    struct Snapshot {
        std::optional<QString> path; // present when it changed since the last take
        int found = 0;
        int entered = -1;                       // the tile worked in, -1 before the first
        std::map<int, std::int64_t> tileBytes;  // running totals per tile
    };
    Snapshot take();
    void reset();

private:
    QMutex mutex;
    std::optional<QString> path;
    int foundSoFar = 0;
    int enteredTile = -1;
    std::map<int, std::int64_t> bytesByTile;
};
