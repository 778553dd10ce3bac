#pragma once

#include "App/Channel.hpp"

#include <array>

class AppModel;
class QObject;

// One row per channel, in column order: everything the shell needs to know of a channel. A new
// channel is a new row here (see Modules/README.md); nothing else picks a channel by position.
struct ChannelRow {
    Channel channel;
    const char* shortKey; // "channel.junk.short"
    const char* titleKey; // "channel.junk.title"
    const char* screen;   // the QML screen, by its path below Sources/Zephrane
    // The channel's model in the application model; absent while the channel is not built.
    QObject* (*model)(const AppModel& app);
};

namespace ChannelTable {

const std::array<ChannelRow, 8>& rows();
const ChannelRow& row(Channel channel);

} // namespace ChannelTable
