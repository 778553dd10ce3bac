#pragma once

#include "CleanerCore/Removal/RemovalFailure.hpp"

#include <QMetaType>
#include <QString>
#include <QtQml/qqmlregistration.h>

// One item a removal left in place, as the report lists it: its name, where it is, and why.
struct CleanupFailure {
    Q_GADGET
    QML_VALUE_TYPE(cleanupFailure)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString path MEMBER path)
    Q_PROPERTY(QString reason MEMBER reason)

public:
    QString name;
    QString path;
    QString reason;

    static CleanupFailure from(const CleanerCore::RemovalFailure& failure);
    bool operator==(const CleanupFailure&) const = default;
};

Q_DECLARE_METATYPE(CleanupFailure)
