#include "CleanerCore/Display/CoreL10n.hpp"
#include "CleanerCore/LargeFiles/FileKind.hpp"

#include <gtest/gtest.h>

using namespace CleanerCore;

TEST(FileKind, FollowsTheTypeDatabaseInTheOrderOfTests) {
    const std::vector<std::pair<std::string, FileKind>> cases{
        {"/h/a.mkv", FileKind::video},
        {"/h/a.MP4", FileKind::video},
        {"/h/a.webm", FileKind::video},
        {"/h/a.flac", FileKind::audio},
        {"/h/a.mp3", FileKind::audio},
        {"/h/a.png", FileKind::image},
        // an SVG is text to the database too: image is tested first
        {"/h/a.svg", FileKind::image},
        {"/h/a.zip", FileKind::archive},
        {"/h/a.tar.gz", FileKind::archive},
        {"/h/a.7z", FileKind::archive},
        {"/h/a.deb", FileKind::archive},
        // a CD image is a raw disk image to the database: disk image wins over everything
        {"/h/a.iso", FileKind::diskImage},
        {"/h/a.dmg", FileKind::diskImage},
        {"/h/a.qcow2", FileKind::diskImage},
        {"/h/a.pdf", FileKind::document},
        {"/h/a.txt", FileKind::document},
        {"/h/a.csv", FileKind::document},
        {"/h/a.pptx", FileKind::document},
        {"/h/a.ods", FileKind::document},
        // zip containers underneath, documents to the user
        {"/h/a.docx", FileKind::document},
        {"/h/a.epub", FileKind::document},
        {"/h/a.qqqzz", FileKind::other},
        {"/h/noextension", FileKind::other},
        {"/h/.bashrc", FileKind::other},
        {"/h/a.exe", FileKind::other},
        {"/h/Album.photoslibrary", FileKind::other}};
    for (const auto& [path, kind] : cases)
        EXPECT_EQ(fileKindOf(URL::file(path)), kind) << path;
}

TEST(FileKind, EveryKindHasATitleInBothLanguages) {
    for (FileKind kind : allFileKinds)
        for (const char* language : {"en", "pt-BR"})
            EXPECT_NE(title(kind, language), titleKey(kind)) << rawValue(kind) << " " << language;
}
