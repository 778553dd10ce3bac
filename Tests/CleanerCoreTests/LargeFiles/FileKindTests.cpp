#include "CleanerCore/Display/CoreL10n.hpp"
#include "CleanerCore/LargeFiles/FileKind.hpp"

#include <gtest/gtest.h>

using namespace CleanerCore;

TEST(FileKind, FollowsTheTypeDatabaseInTheOrderOfTests) {
    // To the type database an SVG is text too (image is tested first), a CD image a raw disk image
    // (disk image wins over everything), and ".docx" and ".epub" zip archives (documents to the user).
    using enum FileKind;
    const std::vector<std::pair<std::string, FileKind>> cases{
        {"/h/a.mkv", video},     {"/h/a.MP4", video},          {"/h/a.webm", video},
        {"/h/a.flac", audio},    {"/h/a.mp3", audio},          {"/h/a.png", image},
        {"/h/a.svg", image},     {"/h/a.zip", archive},        {"/h/a.tar.gz", archive},
        {"/h/a.7z", archive},    {"/h/a.deb", archive},        {"/h/a.iso", diskImage},
        {"/h/a.dmg", diskImage}, {"/h/a.qcow2", diskImage},    {"/h/a.pdf", document},
        {"/h/a.txt", document},  {"/h/a.csv", document},       {"/h/a.pptx", document},
        {"/h/a.ods", document},  {"/h/a.docx", document},      {"/h/a.epub", document},
        {"/h/a.qqqzz", other},   {"/h/plain", other},          {"/h/.bashrc", other},
        {"/h/a.exe", other},     {"/h/a.photoslibrary", other}};
    for (const auto& [path, kind] : cases)
        EXPECT_EQ(fileKindOf(URL::file(path)), kind) << path;
}

TEST(FileKind, EveryKindHasATitleInBothLanguages) {
    for (FileKind kind : allFileKinds)
        for (const char* language : {"en", "pt-BR"})
            EXPECT_NE(title(kind, language), titleKey(kind)) << rawValue(kind) << " " << language;
}
