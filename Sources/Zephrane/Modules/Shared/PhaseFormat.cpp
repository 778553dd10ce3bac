#include "Modules/Shared/PhaseFormat.hpp"

#include "CleanerCore/Display/CoreL10n.hpp"

#include <QCoreApplication>

#include <array>
#include <cmath>

namespace PhaseFormat {
namespace {

// 1,000-based units, as file sizes are shown everywhere in the application.
constexpr std::array<const char*, 7> units{"bytes", "kB", "MB", "GB", "TB", "PB", "EB"};
constexpr std::array<const char*, 7> spokenUnitKeys{
    QT_TRID_NOOP("phase.unit.bytes"),     QT_TRID_NOOP("phase.unit.kilobytes"),
    QT_TRID_NOOP("phase.unit.megabytes"), QT_TRID_NOOP("phase.unit.gigabytes"),
    QT_TRID_NOOP("phase.unit.terabytes"), QT_TRID_NOOP("phase.unit.petabytes"),
    QT_TRID_NOOP("phase.unit.exabytes")};

struct Scaled {
    double value;
    std::size_t unit;
    int decimals;
};

Scaled scaled(std::int64_t count) {
    double value = static_cast<double>(count < 0 ? -count : count);
    std::size_t unit = 0;
    while (value >= 999.95 && unit + 1 < units.size()) {
        value /= 1000.0;
        ++unit;
    }
    // Two digits of fraction for small multiples, one above ten, none for plain bytes.
    const int decimals = unit == 0 ? 0 : (value < 10 ? 2 : (value < 100 ? 1 : 0));
    return {count < 0 ? -value : value, unit, decimals};
}

} // namespace

QLocale locale() {
    return QLocale(QString::fromStdString(CleanerCore::CoreL10n::currentLanguage()));
}

Bytes bytes(std::int64_t count) {
    const Scaled s = scaled(count);
    const QString number = locale().toString(s.value, 'f', s.decimals);
    const QString unit = QString::fromLatin1(units[s.unit]);
    return {number + QChar(0x00A0) + unit, number, unit};
}

QString spokenBytes(std::int64_t count) {
    const Scaled s = scaled(count);
    return qtTrId(spokenUnitKeys[s.unit]).arg(locale().toString(s.value, 'f', s.decimals));
}

QString clock(std::chrono::seconds elapsed) {
    const auto total = std::max<long long>(0, elapsed.count());
    const long long hours = total / 3600, minutes = (total / 60) % 60, seconds = total % 60;
    if (hours > 0)
        return QStringLiteral("%1:%2:%3")
            .arg(hours)
            .arg(minutes, 2, 10, QChar('0'))
            .arg(seconds, 2, 10, QChar('0'));
    return QStringLiteral("%1:%2").arg(minutes).arg(seconds, 2, 10, QChar('0'));
}

QString duration(std::chrono::milliseconds elapsed) {
    const auto ms = std::max<long long>(0, elapsed.count());
    if (ms < 10'000)
        return qtTrId("phase.duration.seconds")
            .arg(locale().toString(static_cast<double>(ms) / 1000.0, 'f', 1));
    const long long seconds = (ms + 500) / 1000;
    if (seconds < 60)
        return qtTrId("phase.duration.seconds").arg(seconds);
    return qtTrId("phase.duration.minutes").arg(seconds / 60).arg(seconds % 60);
}

} // namespace PhaseFormat
