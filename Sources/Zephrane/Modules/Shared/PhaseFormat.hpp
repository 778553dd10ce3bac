#pragma once

#include <QLocale>
#include <QString>

#include <chrono>

// Counts and times of the phase screens as text, in the interface's language.
namespace PhaseFormat {

QLocale locale();

// A count of items: "1 item", "3 items".
QString count(int items);

// Time since a scan began, as a running clock: "0:07", "12:30", "1:02:03".
QString clock(std::chrono::seconds elapsed);
// How long a removal took: "0.4 s", "12 s", "2 min 5 s".
QString duration(std::chrono::milliseconds elapsed);

} // namespace PhaseFormat
