#pragma once

#include "Painel/PainelAccent.hpp"

#include <QColor>

// The fourteen colours of the panel look. Views take colours only from here.
struct PainelPalette {
    QColor bg, deep, panel, raised, border, divider, text, muted, faint, ledOff, ok, warn, accent, onAccent;

    static PainelPalette make(PainelAccent accent, bool increasedContrast);
    bool operator==(const PainelPalette&) const = default;
};
