#include "Painel/ByteParts.hpp"

#include "CleanerCore/Display/CoreL10n.hpp"

#include <QLocale>

ByteParts ByteParts::make(std::int64_t bytes, const QString& locale) {
    // Stand-in until the engine's byte display is in: the platform's 1,000-based text, split the
    // same way (digits and separators, then the unit).
    const QLocale qlocale(locale.isEmpty() ? QString::fromStdString(CleanerCore::CoreL10n::currentLanguage())
                                           : locale);
    const int precision = bytes < 1'000'000 ? 0 : (bytes < 1'000'000'000 ? 1 : 2);
    const QString formatted = qlocale.formattedDataSize(bytes, precision, QLocale::DataSizeSIFormat);
    const QString decimal = qlocale.decimalPoint();
    const QString group = qlocale.groupSeparator();
    qsizetype end = 0;
    while (end < formatted.size() &&
           (formatted[end].isDigit() || decimal.contains(formatted[end]) || group.contains(formatted[end])))
        ++end;
    ByteParts parts;
    const QString number = formatted.left(end);
    parts.unit = formatted.mid(end).trimmed().remove(QChar(0x00A0)).remove(QChar(0x202F));
    const qsizetype split = number.indexOf(decimal);
    parts.integer = split < 0 ? number : number.left(split);
    parts.fraction = split < 0 ? QString() : number.mid(split + decimal.size());
    parts.spoken = formatted;
    return parts;
}
