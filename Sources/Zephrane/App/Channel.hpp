#pragma once

#include <QString>

#include <array>
#include <optional>

// The eight sections of the window, in column order. Raw values 0-7 are stable: shortcuts and QML
// refer to channels by them. What each one shows and owns is in ChannelTable.
enum class Channel { home = 0, junk, lens, large, apps, leftovers, trash, updates };

namespace Channels {

inline constexpr std::array<Channel, 8> allCases{Channel::home,  Channel::junk,      Channel::lens,
                                                 Channel::large, Channel::apps,      Channel::leftovers,
                                                 Channel::trash, Channel::updates};

constexpr int rawValue(Channel channel) { return static_cast<int>(channel); }
std::optional<Channel> fromRaw(int raw);

QString keyEquivalent(Channel channel); // "1"
QString title(Channel channel);
QString shortLabel(Channel channel);
QString accessibilityName(Channel channel); // "channel.a11y.name" with the title

} // namespace Channels
