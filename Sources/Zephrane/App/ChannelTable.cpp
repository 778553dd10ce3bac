#include "App/ChannelTable.hpp"

#include "App/AppModel.hpp"

#include <QtGlobal>

namespace ChannelTable {
namespace {

constexpr std::array<ChannelRow, 8> table{{
    {Channel::home, QT_TRID_NOOP("channel.home.short"), QT_TRID_NOOP("channel.home.title"),
     "Modules/Home/HomeChannel.qml", [](const AppModel& app) -> QObject* { return app.home(); }},
    {Channel::junk, QT_TRID_NOOP("channel.junk.short"), QT_TRID_NOOP("channel.junk.title"),
     "Modules/Junk/JunkChannel.qml", [](const AppModel& app) -> QObject* { return app.junk(); }},
    {Channel::lens, QT_TRID_NOOP("channel.lens.short"), QT_TRID_NOOP("channel.lens.title"),
     "Modules/Lens/LensChannel.qml", [](const AppModel& app) -> QObject* { return app.spaceLens(); }},
    {Channel::large, QT_TRID_NOOP("channel.large.short"), QT_TRID_NOOP("channel.large.title"),
     "Modules/Large/LargeChannel.qml", [](const AppModel& app) -> QObject* { return app.large(); }},
    {Channel::apps, QT_TRID_NOOP("channel.apps.short"), QT_TRID_NOOP("channel.apps.title"),
     "Modules/Apps/AppsChannel.qml", [](const AppModel& app) -> QObject* { return app.uninstaller(); }},
    {Channel::leftovers, QT_TRID_NOOP("channel.leftovers.short"), QT_TRID_NOOP("channel.leftovers.title"),
     "Modules/Leftovers/LeftoversChannel.qml",
     [](const AppModel& app) -> QObject* { return app.leftovers(); }},
    {Channel::trash, QT_TRID_NOOP("channel.trash.short"), QT_TRID_NOOP("channel.trash.title"),
     "Modules/Trash/TrashChannel.qml", [](const AppModel& app) -> QObject* { return app.trash(); }},
    {Channel::updates, QT_TRID_NOOP("channel.updates.short"), QT_TRID_NOOP("channel.updates.title"),
     "Modules/Updates/UpdatesChannel.qml", [](const AppModel& app) -> QObject* { return app.updates(); }},
}};

constexpr bool inColumnOrder() {
    for (std::size_t index = 0; index < table.size(); ++index)
        if (Channels::rawValue(table[index].channel) != static_cast<int>(index))
            return false;
    return true;
}
static_assert(inColumnOrder(), "the table lists every channel once, in the order of their raw values");

} // namespace

const std::array<ChannelRow, 8>& rows() {
    return table;
}

const ChannelRow& row(Channel channel) {
    return table[static_cast<std::size_t>(Channels::rawValue(channel))];
}

} // namespace ChannelTable
