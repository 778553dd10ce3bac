#pragma once

namespace CleanerCore::Platform {

// Asks a process to quit with SIGTERM, which it may catch to save its work. There is deliberately
// no way here to force a quit. False when the signal could not be sent (gone, or not ours).
bool askProcessToQuit(int pid);

} // namespace CleanerCore::Platform
