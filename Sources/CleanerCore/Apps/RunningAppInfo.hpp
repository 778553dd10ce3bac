#pragma once

#include "CleanerCore/Platform/RunningApplications.hpp"

#include <cstdint>
#include <optional>
#include <string>

namespace CleanerCore {

// One running application as the engine sees it.
struct RunningAppInfo {
    std::int32_t pid = 0;
    std::string name;
    std::optional<std::string> bundleIdentifier;
    std::optional<std::string> bundlePath;
    bool isRegular = false; // an application of its own, not a helper process

    // From the platform's process record: the name as given, else the bundle's file name without
    // extension, else empty.
    static RunningAppInfo fromProcess(const Platform::RunningApplication& process);

    bool operator==(const RunningAppInfo&) const = default;
};

} // namespace CleanerCore

template <> struct std::hash<CleanerCore::RunningAppInfo> {
    std::size_t operator()(const CleanerCore::RunningAppInfo& info) const noexcept;
};
