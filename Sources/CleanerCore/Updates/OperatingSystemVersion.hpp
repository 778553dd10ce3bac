#pragma once

#include <string>

namespace CleanerCore {

// The version of the running system that feeds state their bounds against.
struct OperatingSystemVersion {
    int major = 0;
    int minor = 0;
    int patch = 0;

    std::string text() const; // "major.minor.patch"
    bool operator==(const OperatingSystemVersion&) const = default;

    // The kernel's release ("6.1.0-18-amd64" gives 6.1.0); zeros when it can't be read.
    static OperatingSystemVersion running();
    static OperatingSystemVersion fromRelease(std::string_view release);
};

} // namespace CleanerCore
