#include "CleanerCore/Platform/PoliteQuit.hpp"

#include "CleanerCore/Platform/RunningApplications.hpp"

#include <algorithm>
#include <cctype>
#include <csignal>
#include <sys/types.h>
#include <unistd.h>

namespace CleanerCore::Platform {

namespace {

bool sameIgnoringCase(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, [](unsigned char x, unsigned char y) { return std::tolower(x) == std::tolower(y); });
}

} // namespace

int askToQuit(std::string_view bundleID, const std::string& procRoot) {
    int asked = 0;
    for (const RunningApplication& process : runningApplications(procRoot)) {
        if (!process.bundleIdentifier || !sameIgnoringCase(*process.bundleIdentifier, bundleID))
            continue;
        if (process.pid <= 1 || process.pid == ::getpid())
            continue;
        if (::kill(process.pid, SIGTERM) == 0)
            ++asked;
    }
    return asked;
}

} // namespace CleanerCore::Platform
