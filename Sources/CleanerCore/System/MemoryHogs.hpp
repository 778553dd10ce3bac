#pragma once

#include "CleanerCore/Apps/RunningAppInfo.hpp"
#include "CleanerCore/System/MemoryHog.hpp"

#include <cstdint>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

// The running applications that use the most memory and may safely be quit from the tray.
namespace CleanerCore::MemoryHogs {

// Parts of the desktop itself, never offered; compared as they stand, case included.
const std::set<std::string>& protectedBundleIDs();

// Whether `app` may be offered at all: a regular application, not pid 0 or 1, not this program
// (by pid or identifier), not a protected id. A bundle must be an ".app" outside the system's
// folders; an application without a bundle must carry the id of its Flatpak or systemd scope.
bool isQuittable(const RunningAppInfo& app, std::int32_t ownPID, const std::optional<std::string>& ownBundleID);

using Footprint = std::function<std::optional<std::uint64_t>(std::int32_t pid)>;

// What ProcessMemory reads for the one pid.
std::optional<std::uint64_t> footprintOf(std::int32_t pid);

// The quittable apps with a footprint, largest first (ties keep their order), at most `limit`
// of them (a negative limit counts as 0). There is no minimum size.
std::vector<MemoryHog> top(const std::vector<RunningAppInfo>& apps, int limit, std::int32_t ownPID,
                           const std::optional<std::string>& ownBundleID, const Footprint& footprint = footprintOf);

// Asks the hog to quit (SIGTERM; it is never forced). `current` is a fresh record of the hog's pid,
// absent when the process has gone: the pid may have been reused since the list was made, so it
// must still be the same application (identifier and bundle) and still quittable. True when the request was sent.
bool quit(const MemoryHog& hog, const std::optional<RunningAppInfo>& current, std::int32_t ownPID,
          const std::optional<std::string>& ownBundleID);

} // namespace CleanerCore::MemoryHogs
