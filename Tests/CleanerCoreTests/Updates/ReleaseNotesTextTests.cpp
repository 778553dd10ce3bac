#include "CleanerCore/Updates/ReleaseNotesText.hpp"

#include <gtest/gtest.h>

using namespace CleanerCore;

TEST(ReleaseNotesText, TurnsMarkupIntoLinesAndBullets) {
    EXPECT_EQ(ReleaseNotesText::plainText("<h2>What's new</h2><ul><li>One</li><li class=x>Two</li></ul>"),
              "What's new\n\n\u2022 One\n\n\u2022 Two");
    EXPECT_EQ(ReleaseNotesText::plainText("First<br>second<BR/>third<br />"), "First\nsecond\nthird");
    EXPECT_EQ(ReleaseNotesText::plainText("<P>A</P>\n\n\n\n<div>B</div>"), "A\n\nB")
        << "runs of empty lines become one, none stay at either end";
    EXPECT_EQ(ReleaseNotesText::plainText("<SCRIPT type=x>\nalert('<p>hi</p>')\n</script>Kept<style>p{}</STYLE>"),
              "Kept");
    EXPECT_EQ(ReleaseNotesText::plainText("  lots \t of\u00A0\u00A0space  "), "lots of space");
    EXPECT_EQ(ReleaseNotesText::plainText("&lt;b&gt;not bold&lt;/b&gt; <b>bold</b>"), "<b>not bold</b> bold")
        << "entities are decoded after the tags are gone";
    EXPECT_EQ(ReleaseNotesText::plainText(""), "");
    EXPECT_EQ(ReleaseNotesText::plainText("<p> </p><br><img src=x>"), "");
    // Broken UTF-8 and an unclosed tag do not stop the cleaner.
    EXPECT_EQ(ReleaseNotesText::plainText("ok \xff <b"), "ok \xEF\xBF\xBD <b");
}

TEST(ReleaseNotesText, DecodesKnownEntitiesOnceAndKeepsTheRest) {
    EXPECT_EQ(ReleaseNotesText::decodeEntities("Tom &amp; Jerry"), "Tom & Jerry");
    EXPECT_EQ(ReleaseNotesText::decodeEntities("AT&T; rocks"), "AT&T; rocks");
    EXPECT_EQ(ReleaseNotesText::decodeEntities("end &"), "end &");
    EXPECT_EQ(ReleaseNotesText::decodeEntities("&#8212;&#x2014;&#X2014;"), "\u2014\u2014\u2014");
    EXPECT_EQ(ReleaseNotesText::decodeEntities("&#xD800;&#x110000;&#;&#x;"), "&#xD800;&#x110000;&#;&#x;");
    EXPECT_EQ(ReleaseNotesText::decodeEntities("&amp;lt;"), "&lt;");
    EXPECT_EQ(ReleaseNotesText::decodeEntities("&hellip;&rsquo;&ldquo;&bull;&nbsp;&#39;"), "\u2026\u2019\u201C\u2022 '");
    EXPECT_EQ(ReleaseNotesText::decodeEntities("&verylongname;"), "&verylongname;") << "more than ten characters";
}

TEST(ReleaseNotesText, GivesUpOnPathologicalMarkupInsteadOfHanging) {
    std::string hostile;
    for (int i = 0; i < 100'000; ++i)
        hostile += "<script>x";
    const std::string text = ReleaseNotesText::plainText(hostile);
    EXPECT_EQ(text, std::string(100'000, 'x')) << "the tags still go; only the unclosed blocks stay as text";
}
