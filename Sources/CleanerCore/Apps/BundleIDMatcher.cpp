#include "CleanerCore/Apps/BundleIDMatcher.hpp"

#include <algorithm>
#include <array>

#include <unicode/locid.h>
#include <unicode/unistr.h>
#include <unicode/utf8.h>

namespace CleanerCore::BundleIDMatcher {

namespace {

constexpr std::array<std::string_view, 7> endings{".plist", ".savedstate", ".binarycookies", ".lockfile",
                                                  ".sfl2",  ".sfl3",       ".desktop"};

bool isTeamCharacter(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z');
}

bool isASCIILetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isHexOrDash(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F') || c == '-';
}

std::string asciiLowercased(std::string_view text) {
    std::string out(text);
    for (char& c : out)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return out;
}

bool isValidUTF8(std::string_view text) {
    const auto* bytes = reinterpret_cast<const uint8_t*>(text.data());
    const auto length = static_cast<int32_t>(text.size());
    for (int32_t i = 0; i < length;) {
        UChar32 c = 0;
        U8_NEXT(bytes, i, length, c);
        if (c < 0)
            return false;
    }
    return true;
}

} // namespace

std::string lowercased(std::string_view text) {
    // A name that is not UTF-8 keeps its other bytes as they are, so it still names its file.
    if (std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; }) ||
        !isValidUTF8(text))
        return asciiLowercased(text);
    icu::UnicodeString unicode =
        icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), static_cast<int32_t>(text.size())));
    unicode.toLower(icu::Locale::getRoot());
    std::string out;
    unicode.toUTF8String(out);
    return out;
}

std::vector<std::string_view> parts(std::string_view identifier) {
    std::vector<std::string_view> out;
    while (!identifier.empty()) {
        const std::size_t dot = identifier.find('.');
        const std::string_view part = identifier.substr(0, dot);
        if (!part.empty())
            out.push_back(part);
        if (dot == std::string_view::npos)
            break;
        identifier.remove_prefix(dot + 1);
    }
    return out;
}

std::string normalize(std::string_view name) {
    const std::size_t dot = name.find('.');
    if (dot == 10 && std::all_of(name.begin(), name.begin() + 10, isTeamCharacter))
        name.remove_prefix(11);
    std::string text = lowercased(name);
    if (text.starts_with("group."))
        text.erase(0, 6);
    for (std::string_view ending : endings) {
        if (text.ends_with(ending)) {
            text.erase(text.size() - ending.size());
            break;
        }
    }
    return text;
}

bool entry(std::string_view entry, std::string_view owner) {
    return entry == owner ||
           (entry.size() > owner.size() && entry.starts_with(owner) && entry[owner.size()] == '.');
}

bool looksLikeBundleID(std::string_view text) {
    const std::vector<std::string_view> pieces = parts(text);
    if (pieces.size() < 3)
        return false;
    const std::string_view first = pieces.front();
    if (first.size() < 2 || first.size() > 6 || !std::all_of(first.begin(), first.end(), isASCIILetter))
        return false;
    return std::none_of(pieces.begin(), pieces.end(), [](std::string_view part) {
        return part.size() >= 16 && std::all_of(part.begin(), part.end(), isHexOrDash);
    });
}

std::string vendor(std::string_view identifier) {
    const std::vector<std::string_view> pieces = parts(identifier);
    std::string out;
    for (std::size_t i = 0; i < pieces.size() && i < 2; ++i) {
        if (i > 0)
            out += '.';
        out += pieces[i];
    }
    return out;
}

} // namespace CleanerCore::BundleIDMatcher
