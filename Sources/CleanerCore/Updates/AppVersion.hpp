#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace CleanerCore::AppVersion {

// One piece of a version text: a run of ASCII digits (leading zeros dropped, kept as text so that
// numbers of any length compare exactly) or a run of letters (lowercased).
struct Token {
    enum class Kind { number, text };
    Kind kind = Kind::number;
    std::string value;

    static Token number(std::string value) { return {Kind::number, std::move(value)}; }
    static Token text(std::string value) { return {Kind::text, std::move(value)}; }
    bool operator==(const Token&) const = default;
};

std::vector<Token> tokens(std::string_view version);

// less: `a` is older; greater: `a` is newer. Any two texts compare.
std::strong_ordering compare(std::string_view a, std::string_view b);
bool isNewer(std::string_view a, std::string_view than);

// Whether the offered pair of marketing version and build is an update over the installed pair.
bool isUpdate(const std::optional<std::string>& newShort, const std::optional<std::string>& newBuild,
              const std::optional<std::string>& currentShort, const std::optional<std::string>& currentBuild);

// "2.1 (2100)" gives "2.1"; a "(" at the very start keeps the text whole.
std::string cutAtParenthesis(std::string_view version);

} // namespace CleanerCore::AppVersion
