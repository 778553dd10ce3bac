#include "CleanerCore/Updates/OperatingSystemVersion.hpp"

#include <sys/utsname.h>

#include <charconv>
#include <string_view>

namespace CleanerCore {

std::string OperatingSystemVersion::text() const {
    return std::to_string(major) + "." + std::to_string(minor) + "." + std::to_string(patch);
}

OperatingSystemVersion OperatingSystemVersion::fromRelease(std::string_view release) {
    OperatingSystemVersion version;
    int* parts[] = {&version.major, &version.minor, &version.patch};
    const char* cursor = release.data();
    const char* end = release.data() + release.size();
    for (int* part : parts) {
        const auto [next, error] = std::from_chars(cursor, end, *part);
        if (error != std::errc{}) {
            *part = 0;
            break;
        }
        cursor = next;
        if (cursor == end || *cursor != '.')
            break;
        ++cursor;
    }
    return version;
}

OperatingSystemVersion OperatingSystemVersion::running() {
    utsname name{};
    if (uname(&name) != 0)
        return {};
    return fromRelease(name.release);
}

} // namespace CleanerCore
