#include "CleanerCore/Updates/AppVersion.hpp"

#include <unicode/locid.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/utf8.h>

namespace CleanerCore::AppVersion {
namespace {

std::string_view trimmedOfBlanks(std::string_view text) {
    constexpr std::string_view blanks = " \t";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool isASCIIDigit(UChar32 c) { return c >= '0' && c <= '9'; }

bool isLetter(UChar32 c) { return c >= 0 && u_hasBinaryProperty(c, UCHAR_ALPHABETIC); }

// Accents written as combining marks belong to the letter before them, as one character.
bool isMark(UChar32 c) { return c >= 0 && (U_GET_GC_MASK(c) & U_GC_M_MASK) != 0; }

std::string lowercased(const std::string& text) {
    std::string out;
    icu::UnicodeString::fromUTF8(text).toLower(icu::Locale::getRoot()).toUTF8String(out);
    return out;
}

class Tokeniser {
public:
    enum class Kind { none, digit, letter };

    void take(Kind kind, std::string_view bytes) {
        if (pending == Kind::none || pending != kind)
            flush();
        buffer.append(bytes);
        pending = kind;
    }
    void appendMark(std::string_view bytes) { buffer.append(bytes); }
    Kind kind() const { return pending; }

    void flush() {
        if (pending == Kind::digit && !buffer.empty()) {
            const std::size_t first = buffer.find_first_not_of('0');
            out.push_back(Token::number(first == std::string::npos ? "0" : buffer.substr(first)));
        } else if (pending == Kind::letter && !buffer.empty()) {
            out.push_back(Token::text(lowercased(buffer)));
        }
        buffer.clear();
        pending = Kind::none;
    }

    std::vector<Token> out;

private:
    std::string buffer;
    Kind pending = Kind::none;
};

std::strong_ordering compareTokens(const Token& a, const Token& b) {
    if (a.kind != b.kind)
        return a.kind == Token::Kind::text ? std::strong_ordering::less : std::strong_ordering::greater;
    if (a.kind == Token::Kind::number && a.value.size() != b.value.size())
        return a.value.size() <=> b.value.size();
    const int order = a.value.compare(b.value);
    return order < 0 ? std::strong_ordering::less : order > 0 ? std::strong_ordering::greater
                                                              : std::strong_ordering::equal;
}

} // namespace

std::vector<Token> tokens(std::string_view version) {
    std::string_view text = trimmedOfBlanks(version);
    if (text.size() >= 2 && (text[0] == 'v' || text[0] == 'V') && isASCIIDigit(text[1]))
        text.remove_prefix(1);

    Tokeniser tokeniser;
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    const auto length = static_cast<std::int32_t>(text.size());
    std::int32_t index = 0;
    while (index < length) {
        const std::int32_t start = index;
        UChar32 c = 0;
        U8_NEXT(bytes, index, length, c); // an invalid sequence gives a negative c: a separator
        const std::string_view character = text.substr(static_cast<std::size_t>(start),
                                                       static_cast<std::size_t>(index - start));
        if (isASCIIDigit(c))
            tokeniser.take(Tokeniser::Kind::digit, character);
        else if (isLetter(c))
            tokeniser.take(Tokeniser::Kind::letter, character);
        else if (isMark(c) && tokeniser.kind() == Tokeniser::Kind::letter)
            tokeniser.appendMark(character);
        else
            tokeniser.flush();
    }
    tokeniser.flush();
    return std::move(tokeniser.out);
}

std::strong_ordering compare(std::string_view a, std::string_view b) {
    const std::vector<Token> left = tokens(a);
    const std::vector<Token> right = tokens(b);
    const std::size_t common = std::min(left.size(), right.size());
    for (std::size_t i = 0; i < common; ++i)
        if (const auto order = compareTokens(left[i], right[i]); order != 0)
            return order;
    if (left.size() == right.size())
        return std::strong_ordering::equal;

    // Only a tail that begins with letters is a pre-release (1.0b1 before 1.0); a tail of zeros
    // changes nothing, and any other tail makes the longer side newer.
    const bool leftLonger = left.size() > right.size();
    const std::vector<Token>& longer = leftLonger ? left : right;
    const auto longerIsNewer = leftLonger ? std::strong_ordering::greater : std::strong_ordering::less;
    const auto longerIsOlder = leftLonger ? std::strong_ordering::less : std::strong_ordering::greater;
    if (longer[common].kind == Token::Kind::text)
        return longerIsOlder;
    for (std::size_t i = common; i < longer.size(); ++i)
        if (longer[i] != Token::number("0"))
            return longerIsNewer;
    return std::strong_ordering::equal;
}

bool isNewer(std::string_view a, std::string_view than) { return compare(a, than) == std::strong_ordering::greater; }

std::string cutAtParenthesis(std::string_view version) {
    const std::size_t open = version.find('(');
    if (open == std::string_view::npos || open == 0)
        return std::string(version);
    return std::string(trimmedOfBlanks(version.substr(0, open)));
}

bool isUpdate(const std::optional<std::string>& newShort, const std::optional<std::string>& newBuild,
              const std::optional<std::string>& currentShort, const std::optional<std::string>& currentBuild) {
    if (newShort && currentShort) {
        const auto order = compare(cutAtParenthesis(*newShort), cutAtParenthesis(*currentShort));
        if (order != 0)
            return order > 0;
        return newBuild && currentBuild && isNewer(*newBuild, *currentBuild);
    }
    // A side that declares only one of the two is still compared against what the other side has.
    if (newBuild && currentBuild)
        return isNewer(*newBuild, *currentBuild);
    if (newBuild)
        return currentShort && isNewer(*newBuild, cutAtParenthesis(*currentShort));
    if (!newShort || !currentBuild)
        return false;
    return isNewer(cutAtParenthesis(*newShort), *currentBuild);
}

} // namespace CleanerCore::AppVersion
