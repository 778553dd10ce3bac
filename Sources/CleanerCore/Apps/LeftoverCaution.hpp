#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace CleanerCore {

template <class Enum> std::optional<Enum> fromRaw(std::string_view raw);

// Why a leftover deserves a second look before it goes.
enum class LeftoverCaution { shared, systemWide };

inline constexpr std::array<LeftoverCaution, 2> allLeftoverCautions{LeftoverCaution::shared,
                                                                    LeftoverCaution::systemWide};

std::string_view rawValue(LeftoverCaution caution);
template <> std::optional<LeftoverCaution> fromRaw<LeftoverCaution>(std::string_view raw);

// "core.leftoverCaution.<raw value>" in the engine's language or `locale`.
std::string note(LeftoverCaution caution, const std::optional<std::string>& locale = std::nullopt);

} // namespace CleanerCore
