#pragma once

// Closing the window quits unless the tray agent is on and a tray exists to hold it: with no tray
// the program must never linger invisible.
namespace AppLifecycle {

constexpr bool quitsOnLastWindowClosed(bool agentOn, bool trayAvailable) { return !(agentOn && trayAvailable); }

} // namespace AppLifecycle
