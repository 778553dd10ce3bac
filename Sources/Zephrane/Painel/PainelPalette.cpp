#include "Painel/PainelPalette.hpp"

PainelPalette PainelPalette::make(PainelAccent accent, bool increasedContrast) {
    const auto hex = [](const char* text) { return QColor(QLatin1String(text)); };
    const auto pick = [&](const char* standard, const char* contrast) {
        return hex(increasedContrast ? contrast : standard);
    };
    return PainelPalette{
        .bg = hex("#121213"),
        .deep = hex("#0B0B0C"),
        .panel = hex("#1C1C1E"),
        .raised = hex("#252528"),
        .border = pick("#2C2C2F", "#6E6E74"),
        .divider = pick("#262629", "#48484D"),
        .text = hex("#ECECEC"),
        .muted = pick("#A3A3A8", "#C8C8CC"),
        .faint = pick("#8C8C90", "#B4B4B9"),
        .ledOff = pick("#2A2A2D", "#1A1A1C"),
        .ok = hex("#7BE38F"),
        .warn = hex("#FFC14D"),
        .accent = PainelAccents::color(accent),
        .onAccent = hex("#121213"),
    };
}
