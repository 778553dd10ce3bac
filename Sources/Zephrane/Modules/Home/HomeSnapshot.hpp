#pragma once

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <cstdint>
#include <optional>
#include <vector>

// Home's view of the last smart scan, derived afresh from the models each time it is asked for, so
// that whatever a channel does (a clean, a scan by hand) shows on Home at once.
class HomeSnapshot {
    Q_GADGET
    QML_VALUE_TYPE(homeSnapshot)
    Q_PROPERTY(QString stage READ stageRaw)
    Q_PROPERTY(QString junkStep READ junkStepRaw)
    Q_PROPERTY(QString leftoversStep READ leftoversStepRaw)
    Q_PROPERTY(double totalBytes READ totalBytesValue)
    Q_PROPERTY(double junkBytes READ junkBytesValue)
    Q_PROPERTY(int itemCount MEMBER itemCount)
    Q_PROPERTY(int stepsDone READ stepsDone)
    Q_PROPERTY(QVariantList parts READ partValues)
    Q_PROPERTY(QDateTime startedAt READ startedAtValue)
    Q_PROPERTY(QDateTime finishedAt READ finishedAtValue)

public:
    enum class Stage { before, scanning, after };
    struct Step {
        enum class Kind { idle, queued, running, done };
        Kind kind = Kind::idle;
        std::int64_t bytes = 0; // only for done
        bool operator==(const Step&) const = default;
    };
    struct Part {
        QString title;
        std::int64_t bytes = 0;
        bool operator==(const Part&) const = default;
    };

    Stage stage = Stage::before;
    std::optional<QDateTime> startedAt;
    std::optional<QDateTime> finishedAt;
    Step junk;
    Step leftovers;
    int itemCount = 0;
    std::vector<Part> parts;

    int stepsDone() const;
    // What the finished steps found together.
    std::int64_t totalBytes() const;

    QString stageRaw() const;
    QString junkStepRaw() const { return stepRaw(junk); }
    QString leftoversStepRaw() const { return stepRaw(leftovers); }
    double totalBytesValue() const { return static_cast<double>(totalBytes()); }
    double junkBytesValue() const { return static_cast<double>(junk.bytes); }
    QVariantList partValues() const;
    QDateTime startedAtValue() const { return startedAt.value_or(QDateTime()); }
    QDateTime finishedAtValue() const { return finishedAt.value_or(QDateTime()); }

    static QString stepRaw(const Step& step);
};

// One line of the result panel: a junk group or the leftovers, with what it holds.
class HomePart {
    Q_GADGET
    QML_VALUE_TYPE(homePart)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(double bytes MEMBER bytes)

public:
    QString title;
    double bytes = 0;
};
