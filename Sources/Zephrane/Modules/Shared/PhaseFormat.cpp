#include "Modules/Shared/PhaseFormat.hpp"

#include "CleanerCore/Display/CoreL10n.hpp"

#include <algorithm>

namespace PhaseFormat {

QLocale locale() {
    return QLocale(QString::fromStdString(CleanerCore::CoreL10n::currentLanguage()));
}

QString count(int items) {
    return QStringLiteral("%1 %2").arg(locale().toString(items), items == 1 ? qtTrId("phase.scan.unit.one")
                                                                           : qtTrId("phase.scan.unit.other"));
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
