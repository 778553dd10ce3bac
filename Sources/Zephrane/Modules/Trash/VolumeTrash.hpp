#pragma once

#include <QMetaType>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <cstdint>

// What the trash of one other volume holds, as the bins panel shows it.
struct VolumeTrash {
    Q_GADGET
    QML_VALUE_TYPE(volumeTrash)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(double bytes READ bytesValue)
    Q_PROPERTY(int count MEMBER count)
    Q_PROPERTY(QString sizeText READ sizeText)
    Q_PROPERTY(QString countText READ countText)

public:
    QString name;
    std::int64_t bytes = 0;
    int count = 0;

    double bytesValue() const { return static_cast<double>(bytes); }
    QString sizeText() const;  // "1.2 MB"
    QString countText() const; // "3 items"
    bool operator==(const VolumeTrash&) const = default;
};

Q_DECLARE_METATYPE(VolumeTrash)
