#include "RandomTree.hpp"

#include <algorithm>
#include <cstdio>
#include <fcntl.h>
#include <fstream>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace TestSupport {

void sparseFile(const fs::path& path, long length) {
    const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    const std::string tail(100, 's');
    if (::pwrite(fd, tail.data(), tail.size(), length - 100) != 100)
        std::perror("pwrite");
    ::close(fd);
}

std::vector<fs::path> randomTree(const fs::path& root, unsigned seed, const RandomTreeOptions& options) {
    std::mt19937 random(seed);
    const auto pick = [&](std::size_t n) { return static_cast<std::size_t>(random() % n); };
    const auto size = [&] { return options.sizes[pick(options.sizes.size())]; };
    std::vector<fs::path> folders{root}, files;
    const auto write = [&](const fs::path& path, std::size_t bytes) {
        fs::create_directories(path.parent_path());
        std::ofstream(path, std::ios::binary) << std::string(bytes, 'z');
        files.push_back(path);
    };
    const int steps = options.steps + static_cast<int>(pick(options.extraSteps + 1));
    for (int step = 0; step < steps; ++step) {
        const fs::path parent = folders[pick(folders.size())];
        std::string name = options.stems[pick(options.stems.size())];
        if (std::ranges::find(options.fixedNames, name) == options.fixedNames.end())
            name += std::to_string(step);
        else if (fs::exists(fs::symlink_status(parent / name)))
            continue;
        switch (pick(12)) {
        case 0:
        case 1:
        case 2:
            if (const fs::path folder = (random() % 2 ? folders.back() : parent) / name;
                !fs::exists(fs::symlink_status(folder))) {
                fs::create_directories(folder);
                folders.push_back(folder);
            }
            break;
        case 3:
            if (!options.packages.empty()) {
                const fs::path package = parent / (name + options.packages[pick(options.packages.size())]);
                write(package / "Contents" / "part", size());
                write(package / "more", size());
            } else if (options.sparseFiles) {
                sparseFile(parent / name, 1L << (16 + pick(6)));
                files.push_back(parent / name);
            }
            break;
        case 4:
            if (options.hardLinks && !files.empty())
                fs::create_hard_link(files[pick(files.size())], parent / name);
            break;
        case 5:
            fs::create_symlink(random() % 2 ? folders[pick(folders.size())] : root, parent / name);
            break;
        case 6:
            fs::create_symlink(random() % 2 && !files.empty() ? files[pick(files.size())] : "/nowhere",
                               parent / name);
            break;
        case 7:
            ::mkfifo((parent / name).c_str(), 0600);
            break;
        case 8:
            if (options.appleDouble)
                write(parent / ("._" + name), 4096);
            else
                fs::create_directory(parent / name);
            break;
        case 9:
            if (options.locked) {
                write(parent / ("locked" + name) / "inside", 5000);
                break;
            }
            [[fallthrough]];
        default:
            write(parent / name, size());
        }
    }
    if (options.appleDouble)
        fs::create_directory(folders[pick(folders.size())] / "._folder");
    return folders;
}

} // namespace TestSupport
