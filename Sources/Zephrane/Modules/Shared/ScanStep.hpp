#pragma once

#include <QMetaType>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <cstdint>
#include <optional>

// One tile of the scanning panel: a unit of work that waits, runs, then shows what it found.
struct ScanStep {
    Q_GADGET
    QML_VALUE_TYPE(scanStep)
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString state READ stateName)
    Q_PROPERTY(QString valueText READ valueText)

public:
    // waiting, scanning, or done with the bytes found.
    struct State {
        enum class Kind { waiting, scanning, done };
        Kind kind = Kind::waiting;
        std::int64_t bytes = 0; // only meaningful when done

        static State waiting() { return {Kind::waiting, 0}; }
        static State scanning() { return {Kind::scanning, 0}; }
        static State done(std::int64_t bytes) { return {Kind::done, bytes}; }
        bool isDone() const { return kind == Kind::done; }
        QString rawValue() const; // "waiting", "scanning", "done"
        bool operator==(const State&) const = default;
    };

    QString id;
    QString title;
    State state;
    std::optional<QString> doneText; // shown instead of the size in a finished tile

    QString stateName() const { return state.rawValue(); }
    // What the tile says under its title: the size found (or the replacement text) once done.
    QString valueText() const;

    bool operator==(const ScanStep&) const = default;
};

Q_DECLARE_METATYPE(ScanStep)
