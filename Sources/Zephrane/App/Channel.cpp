#include "App/Channel.hpp"

#include "App/ChannelTable.hpp"

namespace Channels {

std::optional<Channel> fromRaw(int raw) {
    if (raw < 0 || raw >= static_cast<int>(allCases.size()))
        return std::nullopt;
    return allCases[static_cast<std::size_t>(raw)];
}

QString keyEquivalent(Channel channel) { return QString::number(rawValue(channel)); }
QString title(Channel channel) { return qtTrId(ChannelTable::row(channel).titleKey); }
QString shortLabel(Channel channel) { return qtTrId(ChannelTable::row(channel).shortKey); }
QString accessibilityName(Channel channel) { return qtTrId("channel.a11y.name").arg(title(channel)); }

} // namespace Channels
