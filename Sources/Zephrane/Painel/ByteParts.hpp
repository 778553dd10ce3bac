#pragma once

#include "CleanerCore/Display/ByteDisplay.hpp"

#include <QMetaType>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <cstdint>

// A size as the panel's digits draw it: the integer digits, the digits after the decimal separator
// (empty when there are none), the unit (empty when there is none) and the words a screen reader
// says. Made from a byte count with the same split as the engine's byte display.
struct ByteParts {
    Q_GADGET
    QML_VALUE_TYPE(byteParts)
    Q_PROPERTY(QString integer MEMBER integer)
    Q_PROPERTY(QString fraction MEMBER fraction)
    Q_PROPERTY(QString unit MEMBER unit)
    Q_PROPERTY(QString spoken MEMBER spoken)

public:
    QString integer;
    QString fraction;
    QString unit;
    QString spoken;

    // `locale` is a BCP 47 identifier; empty means the application's language.
    static ByteParts make(std::int64_t bytes, const QString& locale = {});
    // The engine's display of a count, in that locale or the application's language.
    static CleanerCore::ByteDisplay display(std::int64_t bytes, const QString& locale = {});

    bool operator==(const ByteParts&) const = default;
};

Q_DECLARE_METATYPE(ByteParts)
