#pragma once

#include "CleanerCore/Files/URL.hpp"
#include "CleanerCore/Updates/OperatingSystemVersion.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace CleanerCore {

// One <item> of an update feed (the RSS dialect that Sparkle-using applications publish).
struct AppcastItem {
    struct NotesLink {
        URL url;
        std::optional<std::string> language; // the element's xml:lang
        bool operator==(const NotesLink&) const = default;
    };

    std::optional<std::string> title;
    std::optional<std::string> shortVersion;
    std::optional<std::string> version;
    std::optional<URL> enclosureURL;
    std::optional<std::int64_t> enclosureLength;
    std::vector<NotesLink> notesLinks;
    std::optional<URL> fullNotesURL;
    std::optional<std::string> descriptionHTML;
    std::optional<std::string> descriptionLanguage;
    std::optional<std::string> minimumSystemVersion;
    std::optional<std::string> maximumSystemVersion;
    std::optional<std::string> channel;
    bool isInformational = false;
    std::optional<URL> link;

    bool operator==(const AppcastItem&) const = default;

    // Within the item's minimum and maximum system versions (a maximum equal to `system` passes).
    bool supports(const OperatingSystemVersion& system) const;
    // `shortVersion`, else `version`.
    std::optional<std::string> displayVersion() const;
    // The release notes link that best fits the user's languages (BCP 47 tags, most wanted first).
    std::optional<URL> notesURL(const std::vector<std::string>& preferredLanguages) const;
};

namespace Appcast {

// The items of a feed in document order. Never fails: a broken document gives the items finished
// before the fault. No DTD entity is ever declared, loaded or expanded.
std::vector<AppcastItem> items(std::string_view bytes);

// The newest item of the default channel that carries a version and suits `system`; ties keep
// the earlier item.
std::optional<AppcastItem> bestItem(const std::vector<AppcastItem>& items, const OperatingSystemVersion& system);

} // namespace Appcast

} // namespace CleanerCore
