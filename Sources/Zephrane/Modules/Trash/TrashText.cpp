#include "Modules/Trash/TrashText.hpp"

#include "CleanerCore/Display/CoreL10n.hpp"
#include "CleanerCore/Display/RelativeDate.hpp"
#include "Modules/Shared/PhaseFormat.hpp"

#include <QDateTime>

namespace TrashText {

QString items(int count) {
    return (count == 1 ? qtTrId("trash.items.one") : qtTrId("trash.items.other"))
        .arg(PhaseFormat::locale().toString(count));
}

QString when(std::chrono::system_clock::time_point date, std::chrono::system_clock::time_point now) {
    using namespace std::chrono;
    const auto local = [](system_clock::time_point point) {
        return QDateTime::fromMSecsSinceEpoch(duration_cast<milliseconds>(point.time_since_epoch()).count())
            .date();
    };
    if (local(date) == local(now))
        return qtTrId("trash.when.today");
    return QString::fromStdString(
        CleanerCore::RelativeDate::string(date, now, CleanerCore::CoreL10n::currentLanguage()));
}

} // namespace TrashText
