#include "App/ChannelInfo.hpp"

#include "App/ChannelTable.hpp"
#include "App/ZephraneModule.hpp"

ChannelInfo ChannelInfo::of(Channel channel, const AppModel& app) {
    const ChannelRow& row = ChannelTable::row(channel);
    return {Channels::rawValue(channel),
            Channels::title(channel),
            Channels::shortLabel(channel),
            Channels::keyEquivalent(channel),
            Channels::accessibilityName(channel),
            QUrl(QString::fromLatin1(ZephraneModule::root) + QString::fromLatin1(row.screen)),
            row.model ? row.model(app) : nullptr};
}
