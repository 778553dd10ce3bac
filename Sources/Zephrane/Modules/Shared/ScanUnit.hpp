#pragma once

#include "Modules/Shared/ScanFeed.hpp"

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>
#include <stop_token>
#include <vector>

// What one unit of work tells its tile: the bytes and items it found.
struct ScanUnitResult {
    std::int64_t bytes = 0;
    int itemCount = 0;
    std::optional<QString> doneText; // replaces the size on the finished tile
};

// One step of a scan. `work` runs on the thread pool: it must take and return plain values only
// (never touch a QObject), test `stop` between pieces, and may report through the feed. It keeps
// what it found for the channel in a slot of its own that the plan's `adopt` reads.
struct ScanUnit {
    QString id;
    QString title;
    QString path; // a short form of what the unit reads, shown while it runs
    std::function<ScanUnitResult(std::stop_token stop, ScanFeed& feed)> work;
    // A unit that is one walk over several areas shows one tile per area instead of its own, and
    // moves through them with ScanFeed::enter and add; they are all done when the unit ends.
    struct Tile {
        QString id;
        QString title;
    };
    std::vector<Tile> tiles;
};

// One scan of a channel: its units, in order, and how the channel takes what they found. `adopt`
// runs on the interface thread after the last unit, and only when the scan was not stopped.
struct ScanPlan {
    std::vector<ScanUnit> units;
    std::function<void()> adopt;
};
