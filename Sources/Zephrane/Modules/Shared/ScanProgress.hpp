#pragma once

#include "Modules/Shared/ScanStep.hpp"

#include <QDateTime>
#include <QMetaType>
#include <QString>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <optional>
#include <vector>

// What the scanning panel shows of a running scan.
struct ScanProgress {
    Q_GADGET
    QML_VALUE_TYPE(scanProgress)
    Q_PROPERTY(QVariantList steps READ stepValues)
    Q_PROPERTY(int itemCount MEMBER itemCount)
    Q_PROPERTY(QString itemCountText READ itemCountText)
    Q_PROPERTY(QString currentPath READ currentPathText)
    Q_PROPERTY(int doneCount READ doneCount)
    Q_PROPERTY(int stepCount READ stepCount)

public:
    std::vector<ScanStep> steps;
    int itemCount = 0;                  // items found so far
    std::optional<QString> currentPath; // a short form of what is being read
    QDateTime startedAt;

    int doneCount() const;
    int stepCount() const { return static_cast<int>(steps.size()); }
    QVariantList stepValues() const;
    QString itemCountText() const; // "3 items"
    QString currentPathText() const { return currentPath.value_or(QString()); }
    // The running clock since the scan began: "0:07".
    Q_INVOKABLE QString elapsedText() const;

    bool operator==(const ScanProgress&) const = default;
};

Q_DECLARE_METATYPE(ScanProgress)
