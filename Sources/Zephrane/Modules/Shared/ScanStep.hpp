#pragma once

#include <QString>

#include <cstdint>
#include <optional>

// One tile of the scanning panel: a unit of work that waits, runs, then shows what it found.
struct ScanStep {
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

    bool operator==(const ScanStep&) const = default;
};
