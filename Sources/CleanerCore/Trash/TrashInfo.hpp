#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

// The info files of a freedesktop trash: info/NAME.trashinfo beside files/NAME.
namespace CleanerCore::TrashInfo {

inline constexpr std::string_view suffix = ".trashinfo";

// The info file's name for the item `itemName`.
std::string fileName(std::string_view itemName);

// The item an info file speaks for: its name less ".trashinfo"; nothing for any other name.
std::optional<std::string> itemName(std::string_view infoFileName);

// The "DeletionDate" of the "[Trash Info]" group, "YYYY-MM-DDThh:mm:ss" in local time; nothing
// when it is missing or malformed.
std::optional<std::chrono::system_clock::time_point> deletionDate(std::string_view text);

} // namespace CleanerCore::TrashInfo
