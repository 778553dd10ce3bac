#include "CleanerCore/Updates/Appcast.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

using namespace CleanerCore;
using testing::IsEmpty;

namespace {

constexpr std::string_view feed = R"(<?xml version="1.0" encoding="utf-8"?>
<rss version="2.0" xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle">
  <channel>
    <title>Channel title</title>
    <link>https://example.org/channel</link>
    <item>
      <title>Version 2.0</title>
      <link> https://example.org/2.0 </link>
      <sparkle:minimumSystemVersion>5.10</sparkle:minimumSystemVersion>
      <description xml:lang="de"><![CDATA[<p>Neu &amp; besser</p>]]></description>
      <sparkle:releaseNotesLink xml:lang="en">https://example.org/notes/en.html</sparkle:releaseNotesLink>
      <sparkle:releaseNotesLink xml:lang="de">https://example.org/notes/de.html</sparkle:releaseNotesLink>
      <sparkle:releaseNotesLink>file:///etc/passwd</sparkle:releaseNotesLink>
      <sparkle:fullReleaseNotesLink>https://example.org/notes/all.html</sparkle:fullReleaseNotesLink>
      <enclosure url="https://example.org/App 2.0.zip" length="1234"
                 sparkle:version="200" sparkle:shortVersionString="2.0" type="application/octet-stream"/>
      <version>999</version>
      <sparkle:title>ignored</sparkle:title>
    </item>
    <item>
      <title>Version 3.0 beta</title>
      <sparkle:channel>beta</sparkle:channel>
      <enclosure url="https://example.org/3.zip" foo:version="300" xmlns:foo="urn:x"/>
    </item>
    <item>
      <sparkle:informationalUpdate/>
      <enclosure url="ftp://example.org/x.zip" length="abc" other:shortVersionString="1.5"/>
      <sparkle:version>150</sparkle:version>
    </item>
  </channel>
</rss>)";

const OperatingSystemVersion linux6{6, 1, 0};

} // namespace

TEST(Appcast, ReadsEveryFieldOfAnItem) {
    const auto items = Appcast::items(feed);
    ASSERT_EQ(items.size(), 3u);
    const AppcastItem& first = items[0];
    EXPECT_EQ(first.title, "Version 2.0") << "the channel's own title is not an item's";
    EXPECT_EQ(first.link, URL::parse("https://example.org/2.0"));
    EXPECT_EQ(first.version, "200") << "an unprefixed <version> is ignored";
    EXPECT_EQ(first.shortVersion, "2.0");
    EXPECT_EQ(first.enclosureURL, URL::parse("https://example.org/App%202.0.zip"));
    EXPECT_EQ(first.enclosureLength, 1234);
    EXPECT_EQ(first.minimumSystemVersion, "5.10");
    EXPECT_EQ(first.descriptionHTML, "<p>Neu &amp; besser</p>");
    EXPECT_EQ(first.descriptionLanguage, "de");
    ASSERT_EQ(first.notesLinks.size(), 2u) << "the file: link is dropped";
    EXPECT_EQ(first.notesLinks[1].language, "de");
    EXPECT_EQ(first.fullNotesURL, URL::parse("https://example.org/notes/all.html"));
    EXPECT_FALSE(first.isInformational);

    EXPECT_EQ(items[1].channel, "beta");
    EXPECT_EQ(items[1].version, "300") << "any prefix serves for an enclosure attribute";

    const AppcastItem& third = items[2];
    EXPECT_TRUE(third.isInformational);
    EXPECT_EQ(third.enclosureURL, std::nullopt) << "only http and https links are taken";
    EXPECT_EQ(third.enclosureLength, std::nullopt);
    EXPECT_EQ(third.shortVersion, "1.5");
    EXPECT_EQ(third.version, "150");
    EXPECT_EQ(third.displayVersion(), "1.5");
}

TEST(Appcast, PicksTheNewestItemOfTheDefaultChannelThatSuitsTheSystem) {
    const auto items = Appcast::items(feed);
    const auto best = Appcast::bestItem(items, linux6);
    ASSERT_TRUE(best.has_value());
    EXPECT_EQ(best->version, "200") << "the beta channel never wins, even with the highest version";
    // Too old a system for version 2.0: the informational 1.5 is what is left.
    EXPECT_EQ(Appcast::bestItem(items, {5, 9, 0})->version, "150");

    AppcastItem a, b, c;
    a.version = "1.0";
    b.shortVersion = "1.0.0"; // the same version: the earlier item stays
    c.version = "0.9";
    EXPECT_EQ(Appcast::bestItem({a, b, c}, linux6), a);
    AppcastItem bounded;
    bounded.version = "5";
    bounded.maximumSystemVersion = "6.1";
    EXPECT_TRUE(bounded.supports(linux6)) << "a maximum equal to the system is accepted";
    EXPECT_FALSE(bounded.supports({6, 1, 1}));
    EXPECT_EQ(Appcast::bestItem({AppcastItem{}}, linux6), std::nullopt) << "an item without a version";

    EXPECT_EQ(OperatingSystemVersion::fromRelease("6.1.0-18-amd64"), (OperatingSystemVersion{6, 1, 0}));
    EXPECT_EQ(OperatingSystemVersion::fromRelease("5.15"), (OperatingSystemVersion{5, 15, 0}));
    EXPECT_EQ(OperatingSystemVersion::fromRelease("4.19.999rc"), (OperatingSystemVersion{4, 19, 999}));
    EXPECT_EQ(OperatingSystemVersion::fromRelease("unknown"), (OperatingSystemVersion{}));
}

TEST(Appcast, ChoosesReleaseNotesByLanguage) {
    const auto url = [](const char* text) { return URL::parse(text); };
    AppcastItem item;
    EXPECT_EQ(item.notesURL({"en"}), std::nullopt);
    item.link = url("https://e.org/link");
    EXPECT_EQ(item.notesURL({}), item.link);
    item.fullNotesURL = url("https://e.org/full");
    EXPECT_EQ(item.notesURL({}), item.fullNotesURL);
    item.notesLinks = {{url("https://e.org/en"), "en"}};
    EXPECT_EQ(item.notesURL({"de"}), url("https://e.org/en")) << "a single link whatever its language";
    item.notesLinks.push_back({url("https://e.org/de"), "de"});
    EXPECT_EQ(item.notesURL({"de-DE", "en"}), url("https://e.org/de"));
    EXPECT_EQ(item.notesURL({"fr"}), url("https://e.org/en"));
    item.notesLinks.push_back({url("https://e.org/any"), std::nullopt});
    EXPECT_EQ(item.notesURL({"fr"}), url("https://e.org/any"));
    EXPECT_EQ(item.notesURL({"pt_BR", "en-US"}), url("https://e.org/en"));
}

TEST(Appcast, SurvivesHostileAndBrokenDocuments) {
    EXPECT_THAT(Appcast::items(""), IsEmpty());
    EXPECT_THAT(Appcast::items("{\"not\": \"xml\"}"), IsEmpty());
    EXPECT_THAT(Appcast::items("<rss><channel></channel></rss>"), IsEmpty());
    // Cut short inside the second item: the first one, finished, is kept.
    const std::string cut(feed.substr(0, feed.find("<title>Version 3.0")));
    EXPECT_EQ(Appcast::items(cut).size(), 1u);

    std::string laughs = "<?xml version=\"1.0\"?><!DOCTYPE rss [<!ENTITY l0 \"ha\">";
    for (int i = 1; i <= 12; ++i) {
        laughs += "<!ENTITY l" + std::to_string(i) + " \"";
        for (int j = 0; j < 10; ++j)
            laughs += "&l" + std::to_string(i - 1) + ";";
        laughs += "\">";
    }
    laughs += "]><rss><channel><item><title>&l12;</title><sparkle:version>1</sparkle:version></item></channel></rss>";
    EXPECT_THAT(Appcast::items(laughs), IsEmpty()) << "a declared entity stops the parse before any expansion";

    const std::string external = "<!DOCTYPE rss [<!ENTITY e SYSTEM \"file:///etc/hostname\">]>"
                                 "<rss><item><title>&e;</title></item></rss>";
    EXPECT_THAT(Appcast::items(external), IsEmpty());

    const std::string longVersion(10'000, '9');
    const auto items = Appcast::items("<rss><item><s:version>" + longVersion + "</s:version></item></rss>");
    ASSERT_EQ(items.size(), 1u);
    EXPECT_EQ(items[0].version, longVersion);
}
