#pragma once

#include "CleanerCore/Files/URL.hpp"

#include <optional>
#include <set>
#include <string>
#include <string_view>

// Which step of a large-file scan a found file counts in: one step per area (named after the
// area's folder) and a last one for files in folders that are no area.
namespace CleanerCore::LargeFileSteps {

inline constexpr std::string_view otherID = "other";

// The step of `file` below `home`, by standardized path components: the first component below
// the home when `ids` holds it, else "other" when `ids` holds that. A file directly in the home,
// or outside it, counts in no step.
std::optional<std::string> stepID(const URL& file, const URL& home,
                                  const std::set<std::string, std::less<>>& ids);

} // namespace CleanerCore::LargeFileSteps
