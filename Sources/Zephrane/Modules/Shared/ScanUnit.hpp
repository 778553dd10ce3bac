#pragma once

#include "Modules/Shared/ScanFeed.hpp"

#include <QString>

#include <any>
#include <cstdint>
#include <functional>
#include <optional>
#include <stop_token>

// What one unit of work hands back: the tile's numbers and the channel's own partial results.
struct ScanUnitResult {
    std::int64_t bytes = 0;
    int itemCount = 0;
    std::optional<QString> doneText; // replaces the size on the finished tile
    std::any payload;                // given back to the channel, in unit order, when the scan completes
};

// One step of a scan. `work` runs on the thread pool: it must take and return plain values only
// (never touch a QObject), test `stop` between pieces, and may report through the feed.
struct ScanUnit {
    QString id;
    QString title;
    QString path; // a short form of what the unit reads, shown while it runs
    std::function<ScanUnitResult(std::stop_token stop, ScanFeed& feed)> work;
};
