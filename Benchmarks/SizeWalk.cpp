// Times one measurement of a folder tree from the command line, for hyperfine:
//   SizeWalk [--threads N] [--sequential] PATH
// prints the allocated bytes. --threads caps the task scheduler (default: one per core);
// --sequential takes FileSize::allocatedSize instead of the fanned-out route.
#include "CleanerCore/Files/FileSize.hpp"

#include <tbb/global_control.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

int main(int argc, char** argv) {
    int threads = 0;
    bool sequential = false;
    std::string path;
    for (int i = 1; i < argc; ++i) {
        const std::string word = argv[i];
        if (word == "--threads" && i + 1 < argc)
            threads = std::atoi(argv[++i]);
        else if (word == "--sequential")
            sequential = true;
        else
            path = word;
    }
    if (path.empty()) {
        std::fprintf(stderr, "usage: SizeWalk [--threads N] [--sequential] PATH\n");
        return 2;
    }
    std::unique_ptr<tbb::global_control> cap;
    if (threads > 0)
        cap = std::make_unique<tbb::global_control>(tbb::global_control::max_allowed_parallelism,
                                                    static_cast<std::size_t>(threads));
    const auto url = CleanerCore::URL::file(path);
    const std::int64_t bytes = sequential ? CleanerCore::FileSize::allocatedSize(url)
                                          : CleanerCore::FileSize::parallelAllocatedSize(url);
    std::printf("%lld\t%s\n", static_cast<long long>(bytes), path.c_str());
    return 0;
}
