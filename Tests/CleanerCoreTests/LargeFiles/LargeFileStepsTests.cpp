#include "CleanerCore/LargeFiles/KindTotal.hpp"
#include "CleanerCore/LargeFiles/LargeFileSteps.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace CleanerCore;

TEST(LargeFileSteps, AFileCountsInItsAreaElseInOtherButNeverDirectlyInTheHome) {
    const URL home = URL::file("/home/ana/");
    const std::set<std::string, std::less<>> ids{"Movies", "Docs", "other", std::string(LargeFileSteps::otherID)};
    const auto step = [&](const char* path) { return LargeFileSteps::stepID(URL::file(path), home, ids); };
    EXPECT_EQ(step("/home/ana/Movies/a.mkv"), "Movies");
    EXPECT_EQ(step("/home/ana/./Docs/x/../y/b.pdf"), "Docs");
    EXPECT_EQ(step("/home/ana/Elsewhere/c"), LargeFileSteps::otherID);
    EXPECT_EQ(step("/home/ana/other/d"), "other") << "a folder named like the last step is an area";
    EXPECT_EQ(step("/home/ana/top.iso"), std::nullopt);
    EXPECT_EQ(step("/home/anabel/Movies/a.mkv"), std::nullopt);
    EXPECT_EQ(LargeFileSteps::stepID(URL::file("/home/ana/Elsewhere/c"), home, {"Movies"}), std::nullopt);
}

TEST(KindTotal, OneLinePerKindThatOccursInTheKindsOrder) {
    const auto file = [](FileKind kind, std::int64_t size) {
        return LargeFile{URL::file("/h/f"), size, std::nullopt, kind, false};
    };
    const std::vector<LargeFile> files{file(FileKind::other, 5), file(FileKind::video, 10),
                                       file(FileKind::other, 7), file(FileKind::audio, 1)};
    EXPECT_THAT(totalsByKind(files),
                testing::ElementsAre(KindTotal{FileKind::video, 1, 10}, KindTotal{FileKind::audio, 1, 1},
                                     KindTotal{FileKind::other, 2, 12}));
    EXPECT_TRUE(totalsByKind({}).empty());
}
