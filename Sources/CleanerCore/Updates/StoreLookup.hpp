#pragma once

#include "CleanerCore/Apps/AppBundleInfo.hpp"
#include "CleanerCore/Updates/AppUpdate.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace CleanerCore::StoreLookup {

// The store's answer for one app (the JSON of its lookup endpoint): an update when the first
// matching Mac result offers a newer version than is installed. Anything malformed gives nothing.
std::optional<AppUpdate> update(const AppBundleInfo& info, std::string_view lookup);

// The installed text a store or cask version is measured against: the short version, else the
// build, cut at "(" (nothing when the app declares neither).
std::optional<std::string> installedComparable(const AppBundleInfo& info);

} // namespace CleanerCore::StoreLookup
