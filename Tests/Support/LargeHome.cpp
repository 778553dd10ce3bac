#include "LargeHome.hpp"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include <stdexcept>

namespace TestSupport {

namespace {

using namespace std::chrono_literals;
constexpr std::int64_t MB = 1000000;
constexpr auto day = std::chrono::hours(24);

timespec asTimespec(std::chrono::system_clock::time_point moment) {
    const auto since = moment.time_since_epoch();
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(since);
    return {static_cast<time_t>(seconds.count()),
            static_cast<long>(std::chrono::duration_cast<std::chrono::nanoseconds>(since - seconds).count())};
}

} // namespace

void allocatedFile(const std::filesystem::path& path, std::int64_t bytes,
                   std::chrono::system_clock::time_point used) {
    std::filesystem::create_directories(path.parent_path());
    const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0)
        throw std::runtime_error("cannot create " + path.string());
    const int failed = bytes > 0 ? ::posix_fallocate(fd, 0, bytes) : 0;
    const timespec times[2] = {asTimespec(used), asTimespec(used)};
    ::futimens(fd, times);
    ::close(fd);
    if (failed != 0)
        throw std::runtime_error("cannot allocate " + path.string());
}

void buildLargeHome(const std::filesystem::path& home, std::chrono::system_clock::time_point now) {
    allocatedFile(home / "Movies/holiday.mp4", 300 * MB, now - 730 * day);
    allocatedFile(home / "Movies/small.mp4", 1 * MB, now - 730 * day);
    allocatedFile(home / "Downloads/disk.iso", 150 * MB, now - 10 * day);
    allocatedFile(home / "Downloads/backup.zip", 120 * MB, now - 200 * day);
    allocatedFile(home / "Documents/report.pdf", 60 * MB, now - 1 * day);
    allocatedFile(home / "Album.photoslibrary/a", 40 * MB, now - 400 * day);
    allocatedFile(home / "Album.photoslibrary/b", 40 * MB, now - 400 * day);
    allocatedFile(home / "loose.bin", 70 * MB, now - 30 * day);
    allocatedFile(home / "Library/huge.mov", 200 * MB, now - 730 * day);
    allocatedFile(home / ".hidden.bin", 200 * MB, now - 730 * day);
}

} // namespace TestSupport
