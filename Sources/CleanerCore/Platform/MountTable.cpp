#include "CleanerCore/Platform/MountTable.hpp"

#include <charconv>
#include <fstream>
#include <sstream>
#include <sys/sysmacros.h>

namespace CleanerCore::Platform::MountTable {
namespace {

// mountinfo writes space, tab, newline and backslash in paths as three octal digits ("\040").
std::string unescaped(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 3 < text.size()) {
            int value = 0;
            bool octal = true;
            for (std::size_t k = 1; k <= 3; ++k) {
                const char c = text[i + k];
                octal = octal && c >= '0' && c <= '7';
                value = value * 8 + (c - '0');
            }
            if (octal) {
                out += static_cast<char>(value);
                i += 3;
                continue;
            }
        }
        out += text[i];
    }
    return out;
}

std::vector<std::string_view> fields(std::string_view line) {
    std::vector<std::string_view> out;
    std::size_t start = 0;
    while (start < line.size()) {
        const std::size_t end = std::min(line.find(' ', start), line.size());
        if (end > start)
            out.push_back(line.substr(start, end - start));
        start = end + 1;
    }
    return out;
}

bool parseDevice(std::string_view text, std::uint64_t& device) {
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos)
        return false;
    unsigned major = 0, minor = 0;
    const auto a = std::from_chars(text.data(), text.data() + colon, major);
    const auto b = std::from_chars(text.data() + colon + 1, text.data() + text.size(), minor);
    if (a.ec != std::errc{} || b.ec != std::errc{} || a.ptr != text.data() + colon ||
        b.ptr != text.data() + text.size())
        return false;
    device = makedev(major, minor);
    return true;
}

} // namespace

std::vector<MountPoint> parse(std::string_view mountinfo) {
    std::vector<MountPoint> mounts;
    std::size_t start = 0;
    while (start < mountinfo.size()) {
        const std::size_t end = std::min(mountinfo.find('\n', start), mountinfo.size());
        const std::vector<std::string_view> parts = fields(mountinfo.substr(start, end - start));
        start = end + 1;
        // id parent major:minor root mount-point options [optional...] - type source super-options
        std::size_t separator = 6;
        while (separator < parts.size() && parts[separator] != "-")
            ++separator;
        MountPoint mount;
        if (parts.size() < 5 || separator + 1 >= parts.size() || !parseDevice(parts[2], mount.device) ||
            !parts[4].starts_with('/'))
            continue;
        mount.path = unescaped(parts[4]);
        mount.type = std::string(parts[separator + 1]);
        mounts.push_back(std::move(mount));
    }
    return mounts;
}

std::vector<MountPoint> current() {
    std::ifstream in("/proc/self/mountinfo");
    std::stringstream text;
    text << in.rdbuf();
    return parse(text.str());
}

std::string topDirectory(std::string_view path, std::span<const MountPoint> mounts) {
    std::string_view best = "/";
    for (const MountPoint& mount : mounts) {
        const std::string_view candidate = mount.path;
        const bool contains =
            candidate == "/" || path == candidate ||
            (path.starts_with(candidate) && path.size() > candidate.size() && path[candidate.size()] == '/');
        if (contains && candidate.size() > best.size())
            best = candidate;
    }
    return std::string(best);
}

} // namespace CleanerCore::Platform::MountTable
