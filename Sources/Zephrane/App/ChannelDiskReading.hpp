#pragma once

#include <QtGlobal>

#include <optional>

// Free and total bytes of the root volume, as the channel column shows them.
struct ChannelDiskReading {
    qint64 free = 0;
    qint64 total = 0;
    bool operator==(const ChannelDiskReading&) const = default;
};
