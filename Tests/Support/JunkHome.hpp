#pragma once

#include <filesystem>

namespace TestSupport {

// A home with something for every junk rule, and the traps around them: a protected cache, a
// ".DS_Store", a hidden cache, an empty cache folder, derived-data projects, the simulator caches,
// "Report.PART" beside "report.part.txt", and a subfolder of Downloads holding a partial file.
// Sizes are far apart, so that the order by size does not hang on the file system's block size:
// "com.example.app" (the largest cache) > "com.example.tool" > ".hidden-cache".
void buildJunkHome(const std::filesystem::path& home);
// Takes away what buildJunkHome made.
void removeJunkHome(const std::filesystem::path& home);

} // namespace TestSupport
