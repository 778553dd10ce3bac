#pragma once

#include <QString>

// The login item: a freedesktop autostart entry for this program in the user's configuration
// folder, which every common desktop reads when a session starts.
namespace LaunchAtLogin {

// $XDG_CONFIG_HOME/autostart/zephrane.desktop, or ~/.config/autostart/zephrane.desktop.
QString entryPath();
// Whether the desktop will start the program at login: the entry exists and is not switched off.
bool isEnabled();
// Writes or removes the entry, swallowing failures, then reports what the desktop will really do.
bool set(bool on);

} // namespace LaunchAtLogin
