#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace CleanerCore::Platform {

// What an AppStream document (an app's metainfo, or a collection such as a Flatpak app's
// files/share/app-info/xmls/<id>.xml.gz or a remote's appstream.xml.gz) says of one component.
struct AppStreamComponent {
    std::string id;                     // as written, e.g. "org.example.App" or "org.example.App.desktop"
    std::optional<std::string> name;    // the untranslated <name>
    std::optional<std::string> version; // the newest <release>'s version

    bool operator==(const AppStreamComponent&) const = default;
};

// The components of an AppStream document, a <components> collection or a lone <component>, in
// document order. Malformed XML gives what was read before the fault; a component without an
// <id> is left out.
std::vector<AppStreamComponent> parseAppStream(std::string_view xml);

// The document in a file, plain or gzip-compressed (told apart by the gzip magic). Nothing when
// it can't be read or unpacked; an unpacked document is cut off at `limit` bytes.
std::optional<std::string> readAppStreamFile(const std::string& path,
                                             std::size_t limit = std::size_t{64} << 20);

// The component for `id` (also matching an id written with a final ".desktop") in the document
// at `path`; nothing when the file or the component is missing.
std::optional<AppStreamComponent> appStreamComponent(const std::string& path, std::string_view id);

} // namespace CleanerCore::Platform
