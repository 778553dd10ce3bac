#include "CleanerCore/Updates/IgnoredUpdateVersions.hpp"

#include <algorithm>
#include <iterator>

namespace CleanerCore {

bool IgnoredUpdateVersions::hides(const AppUpdate& update) const {
    const auto found = versions.find(update.ignoreKey());
    return found != versions.end() && found->second == update.newVersion;
}

std::vector<AppUpdate> IgnoredUpdateVersions::visible(const std::vector<AppUpdate>& updates) const {
    std::vector<AppUpdate> shown;
    std::copy_if(updates.begin(), updates.end(), std::back_inserter(shown),
                 [this](const AppUpdate& update) { return !hides(update); });
    return shown;
}

std::size_t IgnoredUpdateVersions::hiddenCount(const std::vector<AppUpdate>& updates) const {
    return static_cast<std::size_t>(std::count_if(updates.begin(), updates.end(),
                                                  [this](const AppUpdate& update) { return hides(update); }));
}

void IgnoredUpdateVersions::restore(const std::vector<AppUpdate>& updates) {
    for (const AppUpdate& update : updates)
        if (hides(update))
            versions.erase(update.ignoreKey());
}

} // namespace CleanerCore
