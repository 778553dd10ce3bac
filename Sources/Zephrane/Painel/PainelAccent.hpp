#pragma once

#include <QColor>
#include <QString>

#include <array>
#include <optional>

// The accent colour the user picks; stored by its raw text under "accent".
enum class PainelAccent { orange, lime, blue };

namespace PainelAccents {

inline constexpr std::array<PainelAccent, 3> allCases{PainelAccent::orange, PainelAccent::lime,
                                                      PainelAccent::blue};
inline constexpr PainelAccent standard = PainelAccent::orange;

QString rawValue(PainelAccent accent);
std::optional<PainelAccent> fromRaw(const QString& raw);
QColor color(PainelAccent accent);

} // namespace PainelAccents
