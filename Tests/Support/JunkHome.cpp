#include "JunkHome.hpp"

#include <fstream>
#include <string>
#include <string_view>

namespace fs = std::filesystem;

namespace TestSupport {

namespace {

void write(const fs::path& home, std::string_view relative, std::size_t kilobytes) {
    const fs::path target = home / relative;
    fs::create_directories(target.parent_path());
    std::ofstream out(target, std::ios::binary | std::ios::trunc);
    const std::string content(kilobytes * 1024, 'j');
    out.write(content.data(), static_cast<std::streamsize>(content.size()));
}

} // namespace

void buildJunkHome(const fs::path& home) {
    write(home, "Library/Caches/com.example.app/blob", 160);
    write(home, "Library/Caches/com.example.tool/data", 48);
    write(home, "Library/Caches/.hidden-cache/x", 16);
    write(home, "Library/Caches/CloudKit/db", 64);
    write(home, "Library/Caches/.DS_Store", 8);
    fs::create_directories(home / "Library/Caches/EmptyCache");

    write(home, "Library/Logs/app.log", 24);

    write(home, "Library/Developer/Xcode/DerivedData/ProjectA-abc/Build/Intermediates/x", 96);
    write(home, "Library/Developer/Xcode/DerivedData/ProjectB-def/Index/y", 32);
    write(home, "Library/Developer/Xcode/iOS DeviceSupport/17.0 (21A329)/Symbols/z", 64);
    write(home, "Library/Developer/CoreSimulator/Caches/dyld/a", 40);
    write(home, "Library/Developer/CoreSimulator/Caches/dyld/b", 40);

    write(home, ".npm/_cacache/index-v5/i", 56);
    write(home, ".cargo/registry/cache/crate.crate", 20);

    write(home, ".cache/pip/wheel", 72);
    write(home, ".cache/fontconfig/cache-7", 12);

    write(home, "Downloads/movie.crdownload", 44);
    write(home, "Downloads/Report.PART", 28);
    write(home, "Downloads/report.part.txt", 36);
    write(home, "Downloads/Old/inner.download", 52);
    write(home, "Downloads/Keynote.download/Contents/piece", 16);
}

void removeJunkHome(const std::filesystem::path& home) {
    for (const char* top : {"Library", "Downloads", ".npm", ".cargo", ".cache/pip", ".cache/fontconfig"})
        std::filesystem::remove_all(home / top);
}

} // namespace TestSupport
