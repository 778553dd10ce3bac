#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace CleanerCore::Platform {

// The text values of a bundle's Contents/Info.plist, XML or binary. Values of any other type are
// left out, so a key whose value is no text reads as absent.
class InfoPlist {
public:
    // The text stored under `key`, exactly (embedded NULs kept); nothing for another type.
    std::optional<std::string> text(const std::string& key) const;

    // Nothing unless the bytes hold a property list whose root is a dictionary.
    static std::optional<InfoPlist> parse(std::string_view bytes);
    // parse() of the bundle's Contents/Info.plist; nothing when it can't be read.
    static std::optional<InfoPlist> read(const std::string& bundlePath);

private:
    // The parsed dictionary. Keys are only ever looked up, never enumerated: libplist's key
    // enumeration aborts on a key with an embedded NUL, which a hostile file can hold.
    std::shared_ptr<void> root;
};

} // namespace CleanerCore::Platform
