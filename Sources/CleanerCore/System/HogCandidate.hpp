#pragma once

#include "CleanerCore/Platform/RunningApplications.hpp"

#include <cstdint>
#include <optional>
#include <string>

namespace CleanerCore {

// One running process that may be offered as a memory hog: the facts of a running application
// the ranking needs, field for field those of the running-application record.
struct HogCandidate {
    std::int32_t pid = 0;
    std::string name;
    std::optional<std::string> bundleIdentifier;
    std::optional<std::string> bundlePath;
    bool isRegular = false; // an application of its own, not a helper process

    // From the platform's process record. Without the application scopes and Flatpak instances
    // the record doesn't carry yet, only a process that owns a bundle counts as regular.
    static HogCandidate fromProcess(const Platform::RunningApplication& process);

    bool operator==(const HogCandidate&) const = default;
};

} // namespace CleanerCore
