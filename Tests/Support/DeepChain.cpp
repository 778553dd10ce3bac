#include "DeepChain.hpp"

#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace TestSupport {

DeepChain::DeepChain(const std::filesystem::path& root, int depth) : top(root / "d"), levels(depth) {
    int fd = ::open(root.c_str(), O_RDONLY | O_DIRECTORY);
    for (int level = 0; level < depth && fd >= 0; ++level) {
        if (::mkdirat(fd, "d", 0755) != 0)
            std::perror("mkdirat");
        const int child = ::openat(fd, "d", O_RDONLY | O_DIRECTORY);
        ::close(fd);
        fd = child;
        const int file = ::openat(fd, "f", O_WRONLY | O_CREAT, 0644);
        if (::write(file, "x", 1) != 1)
            std::perror("write");
        ::close(file);
    }
    ::close(fd);
}

DeepChain::~DeepChain() { // from the bottom up, climbing through ".."
    int fd = ::open(top.c_str(), O_RDONLY | O_DIRECTORY);
    for (int level = 1; level < levels; ++level) {
        const int child = ::openat(fd, "d", O_RDONLY | O_DIRECTORY);
        ::close(fd);
        fd = child;
    }
    for (int level = 0; level < levels && fd >= 0; ++level) {
        ::unlinkat(fd, "f", 0);
        const int parent = ::openat(fd, "..", O_RDONLY | O_DIRECTORY);
        ::close(fd);
        fd = parent;
        ::unlinkat(fd, "d", AT_REMOVEDIR);
    }
    ::close(fd);
}

std::int64_t DeepChain::total() const {
    struct stat info {};
    ::lstat((top / "f").c_str(), &info);
    return levels * static_cast<std::int64_t>(info.st_blocks) * 512;
}

} // namespace TestSupport
