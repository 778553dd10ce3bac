#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

// The engine's own texts, table "Core", in English and Brazilian Portuguese. The language follows
// the application's choice (setCurrentLanguage), not the system's; Portuguese is the fallback.
namespace CleanerCore::CoreL10n {

inline constexpr std::string_view table = "Core";
inline constexpr std::string_view fallbackLocalization = "pt-BR";

using Argument = std::variant<std::string, std::int64_t, double>;

// The localizations that have a table, e.g. "en", "pt-BR".
std::span<const std::string_view> localizations();

// The localization used for `locale` (a BCP 47 or ICU identifier): the best of localizations() for
// the identifier itself, then for its language; with no locale or no match, the current language.
std::string bundle(const std::optional<std::string>& locale = std::nullopt);

// The text of `key` for that locale; a missing key comes back as the key itself.
std::string string(std::string_view key, const std::optional<std::string>& locale = std::nullopt);

// The text of `key` formatted with ICU message syntax ({0}, plurals...) in that locale.
std::string format(std::string_view key, const std::optional<std::string>& locale,
                   const std::vector<Argument>& arguments);

// Every key of a localization's table; empty for an unknown localization.
std::vector<std::string> keys(std::string_view localization);

// The application sets this once at launch; thread-safe.
void setCurrentLanguage(std::string_view localization);
std::string currentLanguage();

} // namespace CleanerCore::CoreL10n
