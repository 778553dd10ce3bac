#pragma once

#include <optional>
#include <set>
#include <string>
#include <vector>

namespace CleanerCore::Platform {

// One process of the machine as the desktop sees an application.
struct RunningApplication {
    int pid = 0;
    std::string name;           // the bundle's name, else the process's command name
    std::string executablePath; // empty when the process's executable can't be read (another user's)
    std::optional<std::string> bundleIdentifier;
    std::optional<std::string> bundlePath; // the innermost ".app" folder holding the executable

    bool operator==(const RunningApplication&) const = default;
};

// Every process listed under `procRoot` (a /proc-like tree). A bundle and its identifier are only
// known when the executable lies inside an ".app" folder whose Contents/Info.plist names one; on
// this platform that is rare, and most processes have neither.
std::vector<RunningApplication> runningApplications(const std::string& procRoot = "/proc");

// The bundle identifiers of the running applications, those without one skipped.
std::set<std::string> runningBundleIdentifiers(const std::string& procRoot = "/proc");

// The innermost folder ending in ".app" that holds `executablePath`, if any.
std::optional<std::string> enclosingAppBundle(const std::string& executablePath);

} // namespace CleanerCore::Platform
