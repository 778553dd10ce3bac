#include "CleanerCore/Platform/AppStream.hpp"
#include "CleanerCore/Platform/InfoPlist.hpp"
#include "CleanerCore/Platform/LastUsed.hpp"
#include "FlatpakFixture.hpp"
#include "TempTree.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

using namespace CleanerCore::Platform;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr std::string_view collection = R"(<?xml version="1.0" encoding="UTF-8"?>
<components version="0.8" origin="flathub">
  <component type="desktop-application">
    <id>org.example.One.desktop</id>
    <name xml:lang="de">Eins</name>
    <name>One &amp; Only</name>
    <developer><name>Someone Else</name></developer>
    <releases>
      <release version="1.9" timestamp="1500000000"/>
      <release version="2.0" timestamp="1600000000"/>
      <release version="1.0"/>
    </releases>
  </component>
  <component><name>No id</name></component>
  <component><id>org.example.Two</id></component>
</components>
)";

} // namespace

TEST(AppStream, ReadsIdsUntranslatedNamesAndTheNewestRelease) {
    const auto components = parseAppStream(collection);
    ASSERT_EQ(components.size(), 2u);
    EXPECT_EQ(components[0], (AppStreamComponent{"org.example.One.desktop", "One & Only", "2.0"}));
    EXPECT_EQ(components[1], (AppStreamComponent{"org.example.Two", std::nullopt, std::nullopt}));
    // A lone metainfo component, and a document cut short: what came before the fault stays.
    EXPECT_EQ(parseAppStream("<component><id>a.b.c</id><name>ABC</name></component>").size(), 1u);
    EXPECT_EQ(parseAppStream(collection.substr(0, collection.find("<component><name>"))).size(), 1u);
    EXPECT_THAT(parseAppStream("\xff\xfe garbage"), IsEmpty());
    EXPECT_THAT(
        parseAppStream("<!DOCTYPE x [<!ENTITY e SYSTEM \"file:///etc/passwd\">]><component><id>&e;</id>"
                       "</component>"),
        IsEmpty())
        << "external entities are never loaded";
}

TEST(AppStream, ReadsPlainAndCompressedFilesAndRefusesBrokenOnes) {
    TestSupport::TempTree tree;
    const auto plain = tree.path("one.xml");
    std::ofstream(plain) << collection;
    std::string output;
    ASSERT_EQ(TestSupport::FlatpakFixture::run({"gzip", "-k", "-n", plain.string()}, output), 0) << output;
    const auto component = appStreamComponent(plain.string() + ".gz", "org.example.One");
    ASSERT_TRUE(component.has_value());
    EXPECT_EQ(component->version, "2.0");
    EXPECT_EQ(appStreamComponent(plain.string(), "org.example.Two")->id, "org.example.Two");
    EXPECT_EQ(appStreamComponent(plain.string(), "org.example.Three"), std::nullopt);

    // A gzip stream cut in half unpacks to nothing rather than to half a document.
    std::ifstream in(plain.string() + ".gz", std::ios::binary);
    const std::string packed((std::istreambuf_iterator<char>(in)), {});
    std::ofstream(tree.path("cut.xml.gz"), std::ios::binary) << packed.substr(0, packed.size() / 2);
    EXPECT_EQ(readAppStreamFile(tree.path("cut.xml.gz").string()), std::nullopt);
    EXPECT_EQ(readAppStreamFile(tree.path("missing.xml").string()), std::nullopt);
}

TEST(InfoPlist, KeepsTextValuesOfDictionariesOnly) {
    const auto plist =
        InfoPlist::parse("<plist><dict><key>A</key><string>a</string><key>N</key><integer>1</integer>"
                         "<key>E</key><string></string></dict></plist>");
    ASSERT_TRUE(plist.has_value());
    EXPECT_EQ(plist->text("A"), "a");
    EXPECT_EQ(plist->text("N"), std::nullopt);
    EXPECT_EQ(plist->text("E"), "");
    EXPECT_FALSE(InfoPlist::parse("<plist><array/></plist>").has_value());
    EXPECT_FALSE(InfoPlist::parse("").has_value());
    EXPECT_FALSE(InfoPlist::parse("bplist00").has_value());
}

TEST(InfoPlist, SurvivesAKeyWithAnEmbeddedNul) {
    // Found by the fuzzer: a binary plist whose dictionary key "dict\0\0\0..." holds NULs made
    // libplist's key enumeration abort the process.
    const std::string bytes(
        "\x62\x70\x6c\x69\x73\x74\x30\x30\xd5\x01\x02\x03\x04\x05\x06\x07\x08\x0b\x10\x64\x69\x63\x74\x00"
        "\x00\x00\x6e\x64\x6c\x65\x49\x64\x65\x6e\x74\x65\x69\x69\x66\x72\x5f\x10\x0f\x43\x46\x42\x75\x6e"
        "\x64\x6c\x65\x56\x65\x72\x73\x69\x6f\x6e\x51\x44\x51\x4c\x51\x4e\x5f\x10\x0f\x63\x6f\x6f\x2e\x65"
        "\x78\x61\x6d\x70\x6c\x65\x2e\x61\x70\x70\x52\x34\x32\xd1\x09\x0a\x51\x6b\x51\x76\xa4\x0c\x0d\x0e"
        "\x0f\x10\x01\x23\x40\x04\x00\x00\x00\x00\x00\x00\x09\x42\x00\x01\x10\x07\x08\x13\x28\x3a\x3c\x3e"
        "\x40\x52\x00\x00\x00\x00\x00\x00\x4d\x00\x03\x00\x00\x00\x00\x00\x0c\x00\x00\x00\x00\x00\x00\x00"
        "\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x00\x55\x58\x5a\x5c\x09\x0a\x51\x6b\x51\x76\xa4"
        "\x0c\x0d\x0e\x0f\x10\x01\x23\x40\x04\x00\x00\x00\x00\x00\x00\x09\x42\x00\x61\x63\x6c\x6d\x70\x00"
        "\x00\x2a\x00\x00\x00\x01\x01\x00\x00\x00\x00\x00\x00\x00\x11\x00\x00\x00\x00\x00\x00\x00\x00\x00"
        "\x00\x00\x00\x00\x00\x00\x72",
        223);
    const auto plist = InfoPlist::parse(bytes);
    ASSERT_TRUE(plist.has_value());
    EXPECT_EQ(plist->text("CFBundleIdentifier"), std::nullopt);
}

TEST(LastUsed, ShellStateKeepsTheLatestSightingOfEachApp) {
    const auto seen = gnomeShellLastSeen(
        "<application-state><context id=''><application id='a.b.C.desktop' last-seen='20'/>"
        "<application id='x' last-seen='nope'/><application id='y' last-seen='-5'/></context>"
        "<context id='w'><application id='a.b.C.desktop' last-seen='30'/><application id='z' last-");
    ASSERT_EQ(seen.size(), 1u);
    EXPECT_EQ(seen.at("a.b.C"), TimePoint(std::chrono::seconds(30)));
    EXPECT_THAT(gnomeShellLastSeen("not xml"), IsEmpty());
}
