#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

// Whether the program may read the places the system protects. There is no such grant on this
// desktop; the probe is the user's home folder, so outside a sandbox it reads as granted, and a
// confined build learns the truth the same way.
namespace FullDiskAccess {

// Where the user can look into the grant.
QUrl settingsURL();
// The protected places tried, in order.
QStringList probes();
// The first probe that exists alone decides: a folder must list, a file must open for reading.
// No probe, or one that can't be read, means no grant.
bool isGranted(const QStringList& probeList = probes());

} // namespace FullDiskAccess
