#pragma once

#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace CleanerCore::Platform {

using TimePoint = std::chrono::system_clock::time_point;

// GNOME Shell's record of when each application was last seen running
// (~/.local/share/gnome-shell/application_state): desktop-file id without ".desktop" to the time.
// An unreadable or malformed file gives what could be read, often nothing.
std::map<std::string, TimePoint, std::less<>> gnomeShellLastSeen(std::string_view stateFile);
std::map<std::string, TimePoint, std::less<>> readGnomeShellLastSeen(const std::string& home);

// The newest modification time of `folder` and what lies below it, down to `depth` levels (links
// not followed). Nothing when the folder can't be read.
std::optional<TimePoint> newestChange(const std::string& folder, int depth = 4);

// When the file was last read, if its file system keeps that: the access time when it is later
// than the modification time (a volume mounted "noatime" never moves it past that).
std::optional<TimePoint> lastAccess(const std::string& file);

} // namespace CleanerCore::Platform
