#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace TestSupport {

// What a random tree holds besides nested folders, plain files, links and pipes.
struct RandomTreeOptions {
    std::vector<std::string> stems;      // a name is a stem and the step's number...
    std::vector<std::string> fixedNames; // ...except these stems, used as they are where still free
    std::vector<std::size_t> sizes;      // each plain file takes one of these sizes
    int steps = 250;                     // this many steps and up to `extraSteps` more
    int extraSteps = 0;
    std::vector<std::string> packages; // extensions of packages (folders holding files) to make
    bool hardLinks = false;
    bool sparseFiles = false; // files of 64 KiB to 2 MiB, holes but for their last 100 bytes
    bool appleDouble = false; // "._" files and a "._folder"
    bool locked = false;      // folders named "locked…" holding a file, for tests that refuse them
};

// A tree below `root` made from `seed`: folders nested deep (often below the newest one), files,
// links to folders, to the root, to files and to nowhere, pipes, and what `options` adds. Returns
// the folders, `root` first.
std::vector<std::filesystem::path> randomTree(const std::filesystem::path& root, unsigned seed,
                                              const RandomTreeOptions& options);

// `length` bytes of which only the last 100 are written: the rest is a hole.
void sparseFile(const std::filesystem::path& path, long length);

} // namespace TestSupport
