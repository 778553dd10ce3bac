#include "App/FileManager.hpp"

#include <gtest/gtest.h>

// The file manager is told a file by URL; a name that is not UTF-8 must reach it byte for byte,
// escaped, not as replacement characters that name no file.
TEST(FileManager, FileUrlsKeepTheBytesOfTheName) {
    EXPECT_EQ(FileManager::fileUrl("/home/ana/caf\xe9 1.bin").toString(QUrl::FullyEncoded),
              "file:///home/ana/caf%E9%201.bin");
    EXPECT_EQ(FileManager::fileUrl("/home/ana/v\xc3\xad" "deo.mp4").toLocalFile(), QString::fromUtf8("/home/ana/vídeo.mp4"));
}
