#pragma once

#include <QMetaType>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <cstdint>

// One category of a summary or an outcome: how many items, how many bytes.
struct CleanupLine {
    Q_GADGET
    QML_VALUE_TYPE(cleanupLine)
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(int count MEMBER count)
    Q_PROPERTY(QString countText READ countText)
    Q_PROPERTY(QString sizeText READ sizeText)

public:
    QString id;
    QString title;
    int count = 0;
    std::int64_t bytes = 0;

    QString countText() const; // "3 items"
    QString sizeText() const;  // "1.2 MB"
    bool operator==(const CleanupLine&) const = default;
};

Q_DECLARE_METATYPE(CleanupLine)
