#include "CleanerCore/Platform/ProcessSignals.hpp"

#include "CleanerCore/Platform/SystemCalls.hpp"

#include <csignal>

namespace CleanerCore::Platform {

bool askProcessToQuit(int pid) {
    // 0 and negative ids would signal whole process groups.
    return pid > 1 && SystemCalls::current().kill(pid, SIGTERM) == 0;
}

} // namespace CleanerCore::Platform
