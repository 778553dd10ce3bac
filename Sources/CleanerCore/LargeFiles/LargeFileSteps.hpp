#pragma once

#include "CleanerCore/Files/URL.hpp"

#include <optional>
#include <set>
#include <string>
#include <string_view>

// Which step of a large-file scan a found file counts in: one step per area (named after the
// area's folder) and a last one for files in folders that are no area.
namespace CleanerCore::LargeFileSteps {

// No folder name can hold a "/", so a home folder named "other" keeps a step of its own.
inline constexpr std::string_view otherID = "/";

// The step of `file` below `home`, by standardized path components: the first component below
// the home when `ids` holds it, else `otherID` when `ids` holds it. A file directly in the home,
// or outside it, counts in no step.
std::optional<std::string> stepID(const URL& file, const URL& home,
                                  const std::set<std::string, std::less<>>& ids);

} // namespace CleanerCore::LargeFileSteps
