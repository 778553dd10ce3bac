#include "App/Channel.hpp"

#include <QtGlobal>

namespace Channels {
namespace {

struct Keys {
    const char* shortKey;
    const char* titleKey;
};

constexpr std::array<Keys, 8> keys{{
    {QT_TRID_NOOP("channel.home.short"), QT_TRID_NOOP("channel.home.title")},
    {QT_TRID_NOOP("channel.junk.short"), QT_TRID_NOOP("channel.junk.title")},
    {QT_TRID_NOOP("channel.lens.short"), QT_TRID_NOOP("channel.lens.title")},
    {QT_TRID_NOOP("channel.large.short"), QT_TRID_NOOP("channel.large.title")},
    {QT_TRID_NOOP("channel.apps.short"), QT_TRID_NOOP("channel.apps.title")},
    {QT_TRID_NOOP("channel.leftovers.short"), QT_TRID_NOOP("channel.leftovers.title")},
    {QT_TRID_NOOP("channel.trash.short"), QT_TRID_NOOP("channel.trash.title")},
    {QT_TRID_NOOP("channel.updates.short"), QT_TRID_NOOP("channel.updates.title")},
}};

} // namespace

std::optional<Channel> fromRaw(int raw) {
    if (raw < 0 || raw >= static_cast<int>(allCases.size()))
        return std::nullopt;
    return allCases[static_cast<std::size_t>(raw)];
}

const char* shortKey(Channel channel) { return keys[static_cast<std::size_t>(rawValue(channel))].shortKey; }
const char* titleKey(Channel channel) { return keys[static_cast<std::size_t>(rawValue(channel))].titleKey; }
QString keyEquivalent(Channel channel) { return QString::number(rawValue(channel)); }
QString title(Channel channel) { return qtTrId(titleKey(channel)); }
QString shortLabel(Channel channel) { return qtTrId(shortKey(channel)); }
QString accessibilityName(Channel channel) { return qtTrId("channel.a11y.name").arg(title(channel)); }

} // namespace Channels
