#include "Painel/PainelAccent.hpp"

namespace PainelAccents {

QString rawValue(PainelAccent accent) {
    switch (accent) {
    case PainelAccent::orange:
        return QStringLiteral("orange");
    case PainelAccent::lime:
        return QStringLiteral("lime");
    case PainelAccent::blue:
        return QStringLiteral("blue");
    }
    return QStringLiteral("orange");
}

std::optional<PainelAccent> fromRaw(const QString& raw) {
    for (PainelAccent accent : allCases)
        if (rawValue(accent) == raw)
            return accent;
    return std::nullopt;
}

QColor color(PainelAccent accent) {
    switch (accent) {
    case PainelAccent::orange:
        return QColor(0xFF, 0x6A, 0x1A);
    case PainelAccent::lime:
        return QColor(0xD4, 0xFF, 0x3A);
    case PainelAccent::blue:
        return QColor(0x3A, 0xA0, 0xFF);
    }
    return QColor(0xFF, 0x6A, 0x1A);
}

} // namespace PainelAccents
