#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace CleanerCore::Platform {

// One process of the machine as the desktop sees an application.
struct RunningApplication {
    int pid = 0;
    std::string name;           // the bundle's name, else the process's command name
    std::string executablePath; // empty when the process's executable can't be read (another user's)
    std::optional<std::string> bundleIdentifier;
    std::optional<std::string> bundlePath; // the innermost ".app" folder holding the executable
    // The systemd unit the process runs in ("app-gnome-org.example.App-1234.scope"), when it is an
    // application's unit.
    std::optional<std::string> applicationUnit;
    // An application rather than a helper process: it owns a bundle, or it leads a Flatpak instance
    // or an application's systemd scope (its parent is not part of the same application).
    bool isRegular = false;

    bool operator==(const RunningApplication&) const = default;
};

// Every process listed under `procRoot` (a /proc-like tree). The identifier comes from the ".app"
// folder holding the executable (its Contents/Info.plist), else from the Flatpak sandbox the
// process runs in (its root's .flatpak-info), else from the application scope systemd put it in.
std::vector<RunningApplication> runningApplications(const std::string& procRoot = "/proc");

// The bundle identifiers of the running applications, those without one skipped.
std::set<std::string> runningBundleIdentifiers(const std::string& procRoot = "/proc");

// The innermost folder ending in ".app" that holds `executablePath`, if any.
std::optional<std::string> enclosingAppBundle(const std::string& executablePath);

// The path ("/user.slice/.../app-gnome-org.example.App-42.scope") of the unified (cgroup v2)
// line of a /proc/<pid>/cgroup text, when its last folder is an application's systemd unit.
std::optional<std::string_view> applicationCgroupPath(std::string_view cgroupText);

// The application id of a systemd unit named after the desktop convention:
// "app[-<launcher>]-<id>-<random>.scope" or "app[-<launcher>]-<id>[@<random>].service", with
// systemd's \xNN escapes undone. Nothing for any other unit.
std::optional<std::string> applicationIDOfUnit(std::string_view unit);

// The [Application] name of a Flatpak instance's .flatpak-info key file.
std::optional<std::string> applicationIDOfFlatpakInfo(std::string_view keyFile);

} // namespace CleanerCore::Platform
