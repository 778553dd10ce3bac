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
    EXPECT_THAT(parseAppStream("<!DOCTYPE x [<!ENTITY e SYSTEM \"file:///etc/passwd\">]><component><id>&e;</id>"
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
    const auto plist = InfoPlist::parse("<plist><dict><key>A</key><string>a</string><key>N</key><integer>1</integer>"
                                        "<key>E</key><string></string></dict></plist>");
    ASSERT_TRUE(plist.has_value());
    EXPECT_EQ(plist->text("A"), "a");
    EXPECT_EQ(plist->text("N"), std::nullopt);
    EXPECT_EQ(plist->text("E"), "");
    EXPECT_FALSE(InfoPlist::parse("<plist><array/></plist>").has_value());
    EXPECT_FALSE(InfoPlist::parse("").has_value());
    EXPECT_FALSE(InfoPlist::parse("bplist00").has_value());
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
