#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <string_view>

namespace TestSupport {

// A file of `bytes` allocated bytes (blocks reserved, nothing written, so a large file costs no
// time), whose last access and last change are both `used`.
void allocatedFile(const std::filesystem::path& path, std::int64_t bytes,
                   std::chrono::system_clock::time_point used);

// A home with large files around the filter lines, `now` being the moment they are judged from:
//   Movies/holiday.mp4          300 MB, used two years ago
//   Downloads/disk.iso          150 MB, used ten days ago
//   Downloads/backup.zip        120 MB, used 200 days ago
//   Documents/report.pdf         60 MB, used yesterday (only at the 50 MB choice)
//   Album.photoslibrary/{a,b}    2 x 40 MB, one package right in the home
//   loose.bin                    70 MB, right in the home (like the package, it counts in no step)
// and what must not be found: Library/huge.mov (200 MB), .hidden.bin (200 MB), Movies/small.mp4.
void buildLargeHome(const std::filesystem::path& home, std::chrono::system_clock::time_point now);

} // namespace TestSupport
