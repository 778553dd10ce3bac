#include "Painel/ByteParts.hpp"

#include "CleanerCore/Display/CoreL10n.hpp"

CleanerCore::ByteDisplay ByteParts::display(std::int64_t bytes, const QString& locale) {
    return CleanerCore::ByteDisplay(bytes, locale.isEmpty() ? CleanerCore::CoreL10n::currentLanguage()
                                                            : locale.toStdString());
}

ByteParts ByteParts::make(std::int64_t bytes, const QString& locale) {
    const CleanerCore::ByteDisplay shown = display(bytes, locale);
    return ByteParts{
        .integer = QString::fromStdString(shown.integerPart),
        .fraction = QString::fromStdString(shown.fractionPart.value_or(std::string())),
        .unit = QString::fromStdString(shown.unit),
        .spoken = QString::fromStdString(shown.spoken),
    };
}
