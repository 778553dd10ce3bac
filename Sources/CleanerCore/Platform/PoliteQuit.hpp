#pragma once

#include <string>
#include <string_view>

namespace CleanerCore::Platform {

// Asks every process of the application `bundleID` (case aside) under `procRoot` to quit with
// SIGTERM, the polite request an application may answer by saving its work. Never SIGKILL: an app
// that stays is left running. Returns how many processes were asked.
int askToQuit(std::string_view bundleID, const std::string& procRoot = "/proc");

} // namespace CleanerCore::Platform
