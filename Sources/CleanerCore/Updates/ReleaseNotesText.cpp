#include "CleanerCore/Updates/ReleaseNotesText.hpp"

#include <unicode/regex.h>
#include <unicode/unistr.h>
#include <unicode/utf8.h>

#include <array>
#include <charconv>
#include <memory>
#include <mutex>
#include <vector>

namespace CleanerCore::ReleaseNotesText {
namespace {

struct Replacement {
    const char* pattern;
    const char* replacement; // ICU replacement syntax: "$" and "\" would need escaping
};

constexpr std::array<Replacement, 6> tagRules{{
    {"(?is)<(script|style)[^>]*>.*?</\\1>", ""},
    {"(?i)<br\\s*/?>", "\n"},
    {"(?i)<li[^>]*>", "\n\u2022 "},
    {"(?i)</(p|div|li|ul|ol|h[1-6]|tr)>", "\n"},
    {"(?i)<(p|div|h[1-6]|ul|ol|tr)[^>]*>", "\n"},
    {"<[^>]+>", ""},
}};

// In the regex engine's steps, of the order of milliseconds each.
constexpr int32_t matchTimeLimit = 2000;

// Compiled once; each call clones a matcher of its own, so calls may run on any thread.
const std::vector<std::unique_ptr<icu::RegexPattern>>& compiledRules() {
    static const auto rules = [] {
        std::vector<std::unique_ptr<icu::RegexPattern>> compiled;
        for (const Replacement& rule : tagRules) {
            UErrorCode status = U_ZERO_ERROR;
            UParseError error{};
            compiled.emplace_back(icu::RegexPattern::compile(icu::UnicodeString::fromUTF8(rule.pattern), error, status));
            if (U_FAILURE(status))
                compiled.back().reset();
        }
        return compiled;
    }();
    return rules;
}

icu::UnicodeString replaceAll(const icu::RegexPattern& pattern, const icu::UnicodeString& text,
                              const icu::UnicodeString& replacement) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::RegexMatcher> matcher(pattern.matcher(text, status));
    if (U_FAILURE(status))
        return text;
    // Notes come from anyone: thousands of unclosed "<script" make the lazy match quadratic.
    // Past the limit the rule is given up and the text goes on as it stands (the last rule still
    // takes out every tag).
    matcher->setTimeLimit(matchTimeLimit, status);
    icu::UnicodeString result = matcher->replaceAll(replacement, status);
    return U_FAILURE(status) ? text : result;
}

std::string_view namedEntity(std::string_view name) {
    static constexpr std::pair<std::string_view, std::string_view> table[] = {
        {"amp", "&"},          {"lt", "<"},           {"gt", ">"},           {"quot", "\""},
        {"apos", "'"},         {"nbsp", " "},         {"#39", "'"},          {"mdash", "\u2014"},
        {"ndash", "\u2013"},   {"hellip", "\u2026"},  {"rsquo", "\u2019"},   {"lsquo", "\u2018"},
        {"rdquo", "\u201D"},   {"ldquo", "\u201C"},   {"bull", "\u2022"},
    };
    for (const auto& [entity, text] : table)
        if (entity == name)
            return text;
    return {};
}

bool appendCodePoint(std::string_view name, std::string& out) {
    if (name.size() < 2 || name[0] != '#')
        return false;
    std::string_view digits = name.substr(1);
    int base = 10;
    if (digits[0] == 'x' || digits[0] == 'X') {
        digits.remove_prefix(1);
        base = 16;
    }
    std::uint32_t value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, base);
    if (digits.empty() || error != std::errc{} || end != digits.data() + digits.size())
        return false;
    if (value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF))
        return false;
    char buffer[4];
    std::int32_t length = 0;
    UBool failed = false;
    U8_APPEND(reinterpret_cast<std::uint8_t*>(buffer), length, 4, static_cast<UChar32>(value), failed);
    if (failed)
        return false;
    out.append(buffer, static_cast<std::size_t>(length));
    return true;
}

// Where the ";" of an entity may stand: within the next ten characters (not bytes) after "&".
std::size_t semicolonWithinTen(std::string_view text, std::size_t from) {
    std::size_t index = from;
    for (int characters = 0; characters < 10 && index < text.size(); ++characters) {
        if (text[index] == ';')
            return index;
        ++index;
        while (index < text.size() && (static_cast<unsigned char>(text[index]) & 0xC0) == 0x80)
            ++index;
    }
    return std::string_view::npos;
}

std::string_view trimmedOfBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// Runs of spaces, tabs and non-breaking spaces become one blank.
std::string collapsedBlanks(std::string_view line) {
    std::string out;
    bool inRun = false;
    for (std::size_t i = 0; i < line.size();) {
        const bool tabOrSpace = line[i] == ' ' || line[i] == '\t';
        const bool nonBreaking = line.compare(i, 2, "\xC2\xA0") == 0;
        if (tabOrSpace || nonBreaking) {
            if (!inRun)
                out.push_back(' ');
            inRun = true;
            i += nonBreaking ? 2 : 1;
        } else {
            out.push_back(line[i]);
            inRun = false;
            ++i;
        }
    }
    return out;
}

} // namespace

std::string decodeEntities(std::string_view text) {
    if (text.find('&') == std::string_view::npos)
        return std::string(text);
    std::string out;
    out.reserve(text.size());
    std::size_t index = 0;
    while (index < text.size()) {
        const std::size_t ampersand = text.find('&', index);
        if (ampersand == std::string_view::npos) {
            out.append(text.substr(index));
            break;
        }
        out.append(text.substr(index, ampersand - index));
        const std::size_t semicolon = semicolonWithinTen(text, ampersand + 1);
        if (semicolon == std::string_view::npos) {
            out.push_back('&');
            index = ampersand + 1;
            continue;
        }
        const std::string_view name = text.substr(ampersand + 1, semicolon - ampersand - 1);
        if (const std::string_view named = namedEntity(name); !named.empty())
            out.append(named);
        else if (!appendCodePoint(name, out))
            out.append(text.substr(ampersand, semicolon - ampersand + 1));
        index = semicolon + 1;
    }
    return out;
}

std::string plainText(std::string_view html) {
    icu::UnicodeString text = icu::UnicodeString::fromUTF8(icu::StringPiece(html.data(), static_cast<int32_t>(html.size())));
    const auto& rules = compiledRules();
    for (std::size_t i = 0; i < rules.size(); ++i)
        if (rules[i])
            text = replaceAll(*rules[i], text, icu::UnicodeString::fromUTF8(tagRules[i].replacement));
    std::string stripped;
    text.toUTF8String(stripped);
    const std::string decoded = decodeEntities(stripped);

    std::vector<std::string> lines;
    std::size_t start = 0;
    for (;;) {
        const std::size_t newline = decoded.find('\n', start);
        const std::string_view line = std::string_view(decoded).substr(start, newline - start);
        lines.emplace_back(trimmedOfBlanks(collapsedBlanks(line)));
        if (newline == std::string::npos)
            break;
        start = newline + 1;
    }

    std::string out;
    bool pendingEmpty = false;
    for (const std::string& line : lines) {
        if (line.empty()) {
            pendingEmpty = !out.empty();
            continue;
        }
        if (!out.empty())
            out += pendingEmpty ? "\n\n" : "\n";
        out += line;
        pendingEmpty = false;
    }
    return out;
}

} // namespace CleanerCore::ReleaseNotesText

