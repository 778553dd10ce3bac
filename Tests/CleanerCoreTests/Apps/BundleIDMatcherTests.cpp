#include "CleanerCore/Apps/BundleIDMatcher.hpp"

#include <gtest/gtest.h>

using namespace CleanerCore::BundleIDMatcher;

TEST(BundleIDMatcher, NormalizeStripsTeamGroupAndOneEnding) {
    EXPECT_EQ(normalize("ABCDE12345.com.foo.plist"), "com.foo");
    EXPECT_EQ(normalize("group.com.foo"), "com.foo");
    EXPECT_EQ(normalize("ABCDE12345.group.com.foo"), "com.foo");
    EXPECT_EQ(normalize("abcde12345.com.foo"), "abcde12345.com.foo"); // lower case is no team id
    EXPECT_EQ(normalize("ABCDE1234.com.foo"), "abcde1234.com.foo");   // nine characters neither
    EXPECT_EQ(normalize("com.foo.plist.plist"), "com.foo.plist");
    EXPECT_EQ(normalize("com.foo.savedState"), "com.foo");
    EXPECT_EQ(normalize("org.example.App.desktop"), "org.example.app");
    EXPECT_EQ(normalize("Ünïcode.Näme"), "ünïcode.näme");
    EXPECT_EQ(normalize("Bad\xff.Name.plist"), "bad\xff.name") << "bytes that are not UTF-8 are kept";
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
