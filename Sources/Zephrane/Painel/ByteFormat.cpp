#include "Painel/ByteFormat.hpp"

#include <cmath>

QString ByteFormat::text(double bytes, const QString& locale) {
    return QString::fromStdString(ByteParts::display(std::llround(bytes), locale).formatted);
}

QString ByteFormat::spoken(double bytes, const QString& locale) {
    return QString::fromStdString(ByteParts::display(std::llround(bytes), locale).spoken);
}

ByteParts ByteFormat::parts(double bytes, const QString& locale) {
    return ByteParts::make(std::llround(bytes), locale);
}
