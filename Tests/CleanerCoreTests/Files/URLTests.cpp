#include "CleanerCore/Files/URL.hpp"

#include <gtest/gtest.h>

#include <unordered_set>

using namespace CleanerCore;

TEST(URL, FileURLsCompareByTheirStandardizedPath) {
    EXPECT_EQ(URL::file("/a/./b//c/"), URL::file("/a/b/c"));
    EXPECT_EQ(URL::file("/a/x/../b"), URL::file("/a/b"));
    EXPECT_NE(URL::file("/a/b"), URL::file("/a/B"));
    EXPECT_NE(URL::file("/a"), URL::parse("https://host/a"));
    const std::unordered_set<URL> set{URL::file("/a/b/"), URL::file("/a//b")};
    EXPECT_EQ(set.size(), 1u);
    EXPECT_EQ(standardizedPath("/../.."), "/");
    EXPECT_EQ(standardizedPath("a/../../b"), "../b");
}

TEST(URL, ParsesFileURLsAndKeepsOthersAsText) {
    const URL file = URL::parse("file:///Users/ana/My%20File%C3%A9.txt");
    ASSERT_TRUE(file.isFile());
    EXPECT_EQ(file.path(), "/Users/ana/My File\u00e9.txt");
    EXPECT_EQ(file.absoluteString(), "file:///Users/ana/My%20File%C3%A9.txt");
    EXPECT_EQ(URL::parse("file://localhost/tmp/x").path(), "/tmp/x");
    const URL web = URL::parse("https://example.com/feed/app.xml?x=1#top");
    EXPECT_FALSE(web.isFile());
    EXPECT_EQ(web.scheme(), "https");
    EXPECT_EQ(web.path(), "/feed/app.xml");
    EXPECT_EQ(web.lastPathComponent(), "app.xml");
    EXPECT_FALSE(URL::parse("file://otherhost/x").isFile()) << "another machine's file is no local path";
}

TEST(URL, NamesAndExtensions) {
    EXPECT_EQ(URL::file("/a/b.tar.gz").lastPathComponent(), "b.tar.gz");
    EXPECT_EQ(URL::file("/a/b.tar.gz").pathExtension(), "gz");
    EXPECT_EQ(URL::file("/a/.bashrc").pathExtension(), "");
    EXPECT_EQ(URL::file("/a/b/").lastPathComponent(), "b");
    EXPECT_EQ(URL::file("/").lastPathComponent(), "/");
    EXPECT_EQ(URL::file("/a/b").deletingLastPathComponent().path(), "/a");
    EXPECT_EQ(URL::file("/a").deletingLastPathComponent().path(), "/");
    EXPECT_EQ(URL::file("/a").appending("b c").path(), "/a/b c");
}

TEST(URL, PercentEncodingRoundTripsAnyBytes) {
    const std::string awkward = "/tmp/100% sure\n\xff\xfe/\u00e9?#";
    EXPECT_EQ(percentEncodedPath("/a b/%"), "/a%20b/%25");
    EXPECT_EQ(percentDecoded(percentEncodedPath(awkward)), awkward);
    EXPECT_EQ(percentDecoded("%zz%4"), "%zz%4") << "malformed escapes stay";
}
