#pragma once

#include "CleanerCore/Updates/AppUpdate.hpp"

#include <map>
#include <string>
#include <vector>

namespace CleanerCore {

// The versions the user chose not to be told about, by AppUpdate::ignoreKey. Ignoring is per
// version, so a later version of the same app shows again by itself.
struct IgnoredUpdateVersions {
    std::map<std::string, std::string> versions; // ignore key -> ignored version, as stored

    bool hides(const AppUpdate& update) const;
    std::vector<AppUpdate> visible(const std::vector<AppUpdate>& updates) const;
    std::size_t hiddenCount(const std::vector<AppUpdate>& updates) const;

    void ignore(const AppUpdate& update) { versions[update.ignoreKey()] = update.newVersion; }
    // Shows again every update of `updates` that is hidden now; entries of apps not among them stay.
    void restore(const std::vector<AppUpdate>& updates);

    bool operator==(const IgnoredUpdateVersions&) const = default;
};

} // namespace CleanerCore
