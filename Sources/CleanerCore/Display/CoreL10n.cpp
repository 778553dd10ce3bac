#include "CleanerCore/Display/CoreL10n.hpp"

#include <array>
#include <map>
#include <mutex>

#include <nlohmann/json.hpp>
#include <unicode/locid.h>
#include <unicode/msgfmt.h>
#include <unicode/unistr.h>

namespace CleanerCore::Embedded {
extern const std::string_view coreTableEn;
extern const std::string_view coreTablePtBR;
} // namespace CleanerCore::Embedded

namespace CleanerCore::CoreL10n {
namespace {

constexpr std::array<std::string_view, 2> kLocalizations{"en", "pt-BR"};

using Table = std::map<std::string, std::string, std::less<>>;

Table parse(std::string_view json) {
    Table table;
    const nlohmann::json parsed = nlohmann::json::parse(json);
    for (const auto& [key, value] : parsed.items())
        table.emplace(key, value.get<std::string>());
    return table;
}

const Table* tableFor(std::string_view localization) {
    static const Table en = parse(Embedded::coreTableEn);
    static const Table ptBR = parse(Embedded::coreTablePtBR);
    if (localization == "en")
        return &en;
    if (localization == "pt-BR")
        return &ptBR;
    return nullptr;
}

std::mutex currentMutex;
std::string current{fallbackLocalization};

std::string lowered(std::string text) {
    for (char& c : text)
        c = (c >= 'A' && c <= 'Z') ? char(c - 'A' + 'a') : (c == '_' ? '-' : c);
    return text;
}

std::optional<std::string> match(const std::string& identifier) {
    // "en_GB", "en-GB@calendar=x", "EN-gb" all mean the same for choosing a table.
    std::string tag = lowered(identifier.substr(0, identifier.find_first_of("@.")));
    const std::string language = tag.substr(0, tag.find('-'));
    for (const std::string& preference : {tag, language}) {
        if (preference.empty())
            continue;
        for (std::string_view candidate : kLocalizations)
            if (lowered(std::string(candidate)) == preference)
                return std::string(candidate);
        // A bare language is served by a localization of that language ("pt" by "pt-BR").
        for (std::string_view candidate : kLocalizations)
            if (lowered(std::string(candidate)).starts_with(preference + "-"))
                return std::string(candidate);
    }
    return std::nullopt;
}

icu::Formattable toFormattable(const Argument& argument) {
    return std::visit(
        [](const auto& value) -> icu::Formattable {
            using T = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<T, std::string>)
                return icu::Formattable(icu::UnicodeString::fromUTF8(value));
            else if constexpr (std::is_same_v<T, std::int64_t>)
                return icu::Formattable(static_cast<int64_t>(value));
            else
                return icu::Formattable(value);
        },
        argument);
}

} // namespace

std::span<const std::string_view> localizations() {
    return kLocalizations;
}

std::string bundle(const std::optional<std::string>& locale) {
    if (locale && !locale->empty())
        if (auto found = match(*locale))
            return *found;
    return currentLanguage();
}

std::string string(std::string_view key, const std::optional<std::string>& locale) {
    const Table* table = tableFor(bundle(locale));
    if (table)
        if (auto it = table->find(key); it != table->end())
            return it->second;
    return std::string(key);
}

std::string format(std::string_view key, const std::optional<std::string>& locale,
                   const std::vector<Argument>& arguments) {
    const std::string pattern = string(key, locale);
    const std::string localeId = locale && !locale->empty() ? *locale : currentLanguage();
    UErrorCode status = U_ZERO_ERROR;
    icu::MessageFormat formatter(icu::UnicodeString::fromUTF8(pattern),
                                 icu::Locale::createCanonical(localeId.c_str()), status);
    if (U_FAILURE(status))
        return pattern;
    std::vector<icu::Formattable> values;
    values.reserve(arguments.size());
    for (const Argument& argument : arguments)
        values.push_back(toFormattable(argument));
    icu::UnicodeString result;
    icu::FieldPosition position;
    formatter.format(values.data(), static_cast<int32_t>(values.size()), result, position, status);
    if (U_FAILURE(status))
        return pattern;
    std::string out;
    result.toUTF8String(out);
    return out;
}

std::vector<std::string> keys(std::string_view localization) {
    std::vector<std::string> out;
    if (const Table* table = tableFor(localization))
        for (const auto& entry : *table)
            out.push_back(entry.first);
    return out;
}

void setCurrentLanguage(std::string_view localization) {
    std::string chosen = match(std::string(localization)).value_or(std::string(fallbackLocalization));
    std::lock_guard lock(currentMutex);
    current = std::move(chosen);
}

std::string currentLanguage() {
    std::lock_guard lock(currentMutex);
    return current;
}

} // namespace CleanerCore::CoreL10n
