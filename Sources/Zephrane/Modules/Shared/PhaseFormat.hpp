#pragma once

#include <QLocale>
#include <QString>

#include <chrono>
#include <cstdint>

// Numbers of the phase screens as text, in the interface's language.
namespace PhaseFormat {

QLocale locale();

// A byte count split for the big digits: "1.4" and "GB"; `text` is both together.
struct Bytes {
    QString text;
    QString number;
    QString unit;
};
Bytes bytes(std::int64_t count);
// The words a screen reader says for a byte count ("1.4 gigabytes").
QString spokenBytes(std::int64_t count);
// Time since a scan began, as a running clock: "0:07", "12:30", "1:02:03".
QString clock(std::chrono::seconds elapsed);
// How long a removal took: "0.4 s", "12 s", "2 min 5 s".
QString duration(std::chrono::milliseconds elapsed);

} // namespace PhaseFormat
