#pragma once

#include "CleanerCore/Trash/TrashEntry.hpp"

#include <QMetaType>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <chrono>

// One line of the trash list: the item's name, size and when it was put in the trash.
struct TrashRow {
    Q_GADGET
    QML_VALUE_TYPE(trashRow)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString path MEMBER path)
    Q_PROPERTY(QString sizeText MEMBER sizeText)
    Q_PROPERTY(QString when MEMBER when)

public:
    QString name;
    QString path;
    QString sizeText;
    QString when; // empty when the item has no readable deletion date

    static TrashRow of(const CleanerCore::TrashEntry& entry, std::chrono::system_clock::time_point now);
    bool operator==(const TrashRow&) const = default;
};

Q_DECLARE_METATYPE(TrashRow)
