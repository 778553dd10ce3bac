#pragma once

#include <QMetaType>
#include <QString>
#include <QtQml/qqmlregistration.h>

// One choice of a filter of the large-files bar: the value the model takes, what the key says, and
// what a screen reader says when the short title would be unclear.
struct LargeFilterOption {
    Q_GADGET
    QML_VALUE_TYPE(largeFilterOption)
    Q_PROPERTY(QString raw MEMBER raw)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString spoken MEMBER spoken)

public:
    QString raw;
    QString title;
    QString spoken;

    bool operator==(const LargeFilterOption&) const = default;
};

Q_DECLARE_METATYPE(LargeFilterOption)
