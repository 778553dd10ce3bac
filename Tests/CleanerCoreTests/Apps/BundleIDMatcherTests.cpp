#include "CleanerCore/Apps/BundleIDMatcher.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace CleanerCore::BundleIDMatcher;

TEST(BundleIDMatcher, NormalizeStripsTeamGroupAndOneEnding) {
    // A team id is ten upper-case letters or digits; bytes that are not UTF-8 are kept.
    const std::vector<std::pair<std::string, std::string>> cases{
        {"ABCDE12345.com.foo.plist", "com.foo"},    {"group.com.foo", "com.foo"},
        {"ABCDE12345.group.com.foo", "com.foo"},    {"abcde12345.com.foo", "abcde12345.com.foo"},
        {"ABCDE1234.com.foo", "abcde1234.com.foo"}, {"com.foo.plist.plist", "com.foo.plist"},
        {"com.foo.savedState", "com.foo"},          {"org.example.App.desktop", "org.example.app"},
        {"Ünïcode.Näme", "ünïcode.näme"},           {"Bad\xff.Name.plist", "bad\xff.name"}};
    for (const auto& [name, normalized] : cases)
        EXPECT_EQ(normalize(name), normalized) << name;
}

TEST(BundleIDMatcher, EntryBelongsOnlyAtADotBoundary) {
    EXPECT_TRUE(entry("com.foo", "com.foo"));
    EXPECT_TRUE(entry("com.foo.helper", "com.foo"));
    EXPECT_FALSE(entry("com.foobar", "com.foo"));
    EXPECT_FALSE(entry("com.fo", "com.foo"));
    EXPECT_FALSE(entry("com.foo.x", "COM.FOO")) << "neither side is altered";
}

TEST(BundleIDMatcher, LooksLikeBundleIDRefusesShortOddAndGeneratedNames) {
    EXPECT_TRUE(looksLikeBundleID("com.example.app"));
    EXPECT_TRUE(looksLikeBundleID("io.x.y"));
    EXPECT_FALSE(looksLikeBundleID("com.example"));
    EXPECT_FALSE(looksLikeBundleID("c.example.app"));
    EXPECT_TRUE(looksLikeBundleID("abcdef.com.app"));
    EXPECT_FALSE(looksLikeBundleID("company.example.app"));
    EXPECT_FALSE(looksLikeBundleID("c0m.example.app"));
    EXPECT_FALSE(looksLikeBundleID("net.ab.12345678-1234-1234-1234-123456789abc"));
    EXPECT_TRUE(looksLikeBundleID("net.ab.12345678-1234-1234-1234-123456789abz"));
    EXPECT_TRUE(looksLikeBundleID("..com..example..app.."));
}

TEST(BundleIDMatcher, VendorIsTheFirstTwoParts) {
    EXPECT_EQ(vendor("com.foo.bar"), "com.foo");
    EXPECT_EQ(vendor("foo"), "foo");
    EXPECT_EQ(vendor(".com..foo.bar"), "com.foo");
}
