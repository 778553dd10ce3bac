#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace CleanerCore::Platform {

// The text values of a bundle's Contents/Info.plist, XML or binary. Values of any other type are
// left out, so a key whose value is no text reads as absent.
struct InfoPlist {
    std::map<std::string, std::string, std::less<>> texts;

    std::optional<std::string> text(std::string_view key) const;

    // Nothing unless the bytes hold a property list whose root is a dictionary.
    static std::optional<InfoPlist> parse(std::string_view bytes);
    // parse() of the bundle's Contents/Info.plist; nothing when it can't be read.
    static std::optional<InfoPlist> read(const std::string& bundlePath);
};

} // namespace CleanerCore::Platform
