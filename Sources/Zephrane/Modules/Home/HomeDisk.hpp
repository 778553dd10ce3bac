#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <cstdint>

// The startup volume's fill, for the disk panel on Home.
class HomeDisk {
    Q_GADGET
    QML_VALUE_TYPE(homeDisk)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(double free READ freeValue)
    Q_PROPERTY(double total READ totalValue)
    Q_PROPERTY(double used READ usedValue)
    Q_PROPERTY(double usedFraction READ usedFraction)

public:
    QString name;
    std::int64_t free = 0;
    std::int64_t total = 0;

    // The volume holding `path` (the root by default): its label, else a plain name.
    static HomeDisk read(const QString& path = QStringLiteral("/"));

    double freeValue() const { return static_cast<double>(free); }
    double totalValue() const { return static_cast<double>(total); }
    double usedValue() const { return static_cast<double>(total - free); }
    // 0 when the size is unknown, so the meter stays dark rather than full.
    double usedFraction() const;
};
