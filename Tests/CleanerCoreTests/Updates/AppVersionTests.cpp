#include "CleanerCore/Updates/AppVersion.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

using namespace CleanerCore;
using AppVersion::Token;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const char* name(std::strong_ordering order) {
    return order < 0 ? "older" : order > 0 ? "newer" : "same";
}

} // namespace

TEST(AppVersion, SplitsDigitsLettersAndSeparators) {
    EXPECT_THAT(AppVersion::tokens("1.0b2"),
                ElementsAre(Token::number("1"), Token::number("0"), Token::text("b"), Token::number("2")));
    EXPECT_THAT(AppVersion::tokens("12rc"), ElementsAre(Token::number("12"), Token::text("rc")));
    EXPECT_THAT(AppVersion::tokens(" \tv1.2\t"), ElementsAre(Token::number("1"), Token::number("2")));
    EXPECT_THAT(AppVersion::tokens("version 2"), ElementsAre(Token::text("version"), Token::number("2")));
    EXPECT_THAT(AppVersion::tokens("v"), ElementsAre(Token::text("v")));
    EXPECT_THAT(AppVersion::tokens("007.000"), ElementsAre(Token::number("7"), Token::number("0")));
    EXPECT_THAT(AppVersion::tokens("1.0RC1"), ElementsAre(Token::number("1"), Token::number("0"),
                                                          Token::text("rc"), Token::number("1")));
    // Newlines are not trimmed but are separators all the same; so is broken UTF-8.
    EXPECT_THAT(AppVersion::tokens("\n2\xff" "3"), ElementsAre(Token::number("2"), Token::number("3")));
    EXPECT_THAT(AppVersion::tokens(".-_ "), IsEmpty());
    // Digits outside ASCII never join a number: Arabic-Indic digits separate, a Roman numeral
    // letter is a letter, and an accent written as a combining mark stays with its letter.
    EXPECT_THAT(AppVersion::tokens("1\u0663" "2"), ElementsAre(Token::number("1"), Token::number("2")));
    EXPECT_THAT(AppVersion::tokens("1\u216B"), ElementsAre(Token::number("1"), Token::text("\u217B")));
    EXPECT_THAT(AppVersion::tokens("B\u00C9ta.E\u0301"), ElementsAre(Token::text("b\u00E9ta"), Token::text("e\u0301")));
}

TEST(AppVersion, ComparesEveryDocumentedPair) {
    using std::strong_ordering;
    const std::string forty(40, '9');
    const std::string fortyOther = std::string(39, '9') + "8";
    const std::vector<std::pair<std::string, std::string>> same{
        {"", ""},        {"..", "-"},          {"", "0"},        {"", "0.0"},
        {"1.02", "1.2"}, {"1.0RC1", "1.0rc1"}, {"1.0", "1.0.0"}, {"v1.2", "1.2"}};
    // The first of each pair is the newer.
    const std::vector<std::pair<std::string, std::string>> newer{
        {"1.10", "1.9"},      {forty, fortyOther},     {"1.0", "1.0-beta"}, {"1.0", "1.0.beta"},
        {"1.0", "1.0b1"},     {"1.0.1", "1.0b1"},      {"1.0.1", "1.0b9"},  {"1.0.0beta", "1.0"},
        {"1.0.0.0.1", "1.0"}, {"1.0beta", "1.0alpha"}, {"10", "9"}};
    // Swapping the sides swaps the answer.
    const auto check = [](const std::string& a, const std::string& b, std::strong_ordering expected) {
        const std::string pair = '"' + a + "\" against \"" + b + '"';
        EXPECT_EQ(name(AppVersion::compare(a, b)), std::string(name(expected))) << pair;
        EXPECT_EQ(name(AppVersion::compare(b, a)), std::string(name(0 <=> expected))) << pair << ", swapped";
    };
    for (const auto& [a, b] : same)
        check(a, b, strong_ordering::equal);
    for (const auto& [a, b] : newer)
        check(a, b, strong_ordering::greater);
    EXPECT_TRUE(AppVersion::isNewer("2", "1"));
    EXPECT_FALSE(AppVersion::isNewer("1", "1.0"));
    // Ten thousand characters of anything compare without trouble.
    EXPECT_EQ(AppVersion::compare(std::string(10'000, '7'), std::string(9'999, '7')),
              strong_ordering::greater);
}

TEST(AppVersion, DecidesUpdatesFromShortVersionsAndBuilds) {
    const std::optional<std::string> none;
    using S = std::optional<std::string>;
    EXPECT_FALSE(AppVersion::isUpdate(none, none, none, none));
    // Both short versions: they decide, the builds only break a tie.
    EXPECT_TRUE(AppVersion::isUpdate(S("2.0"), none, S("1.9"), none));
    EXPECT_FALSE(AppVersion::isUpdate(S("1.9"), S("900"), S("2.0"), S("100")));
    EXPECT_TRUE(AppVersion::isUpdate(S("2.0"), S("201"), S("2.0"), S("200")));
    EXPECT_FALSE(AppVersion::isUpdate(S("2.0"), S("201"), S("2.0"), none));
    EXPECT_FALSE(AppVersion::isUpdate(S("2.0"), none, S("2.0"), S("200")));
    // A build number in parentheses does not make an older version newer.
    EXPECT_FALSE(AppVersion::isUpdate(S("2.0 (2100)"), none, S("2.0"), none));
    EXPECT_TRUE(AppVersion::isUpdate(S("2.1 (2100)"), none, S("2.0 (3000)"), none));
    EXPECT_EQ(AppVersion::cutAtParenthesis("2.1 (2100)"), "2.1");
    EXPECT_EQ(AppVersion::cutAtParenthesis("(2100)"), "(2100)");
    // One short version missing: the sides are compared across.
    EXPECT_TRUE(AppVersion::isUpdate(none, S("300"), S("1.0"), S("200")));
    EXPECT_TRUE(AppVersion::isUpdate(none, S("1.1"), S("1.0"), none));
    EXPECT_FALSE(AppVersion::isUpdate(none, S("1.1"), none, none));
    EXPECT_TRUE(AppVersion::isUpdate(S("5"), none, none, S("4")));
    EXPECT_FALSE(AppVersion::isUpdate(S("5"), none, none, none));
    EXPECT_FALSE(AppVersion::isUpdate(none, none, S("1.0"), S("1")));
}
