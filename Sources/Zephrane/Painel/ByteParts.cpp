#include "Painel/ByteParts.hpp"

#include "CleanerCore/Display/ByteDisplay.hpp"
#include "CleanerCore/Display/CoreL10n.hpp"

ByteParts ByteParts::make(std::int64_t bytes, const QString& locale) {
    const CleanerCore::ByteDisplay display(bytes, locale.isEmpty() ? CleanerCore::CoreL10n::currentLanguage()
                                                                   : locale.toStdString());
    return ByteParts{
        .integer = QString::fromStdString(display.integerPart),
        .fraction = QString::fromStdString(display.fractionPart.value_or(std::string())),
        .unit = QString::fromStdString(display.unit),
        .spoken = QString::fromStdString(display.spoken),
    };
}
