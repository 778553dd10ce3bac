#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace CleanerCore {

// Why an app may not be uninstalled, in the order that decides which reason wins.
enum class UninstallBlocker { running, apple, zephrane };

inline constexpr std::array<UninstallBlocker, 3> allUninstallBlockers{
    UninstallBlocker::running, UninstallBlocker::apple, UninstallBlocker::zephrane};

// "running", "apple", "zephrane".
std::string_view rawValue(UninstallBlocker blocker);

template <class Enum> std::optional<Enum> fromRaw(std::string_view raw);
template <> std::optional<UninstallBlocker> fromRaw<UninstallBlocker>(std::string_view raw);

} // namespace CleanerCore
