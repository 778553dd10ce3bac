#include "CleanerCore/Trash/TrashDirectorySizes.hpp"

#include "CleanerCore/Files/URL.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "CleanerCore/Platform/NoFollow.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <sys/stat.h>

namespace CleanerCore::TrashDirectorySizes {
namespace {

constexpr const char* kName = "directorysizes";
constexpr const char* kReplacement = "directorysizes.new";

// The item a line speaks for: what follows its second space, decoded.
std::string itemOf(std::string_view line) {
    const std::size_t first = line.find(' ');
    const std::size_t second = first == std::string_view::npos ? first : line.find(' ', first + 1);
    return second == std::string_view::npos ? std::string{} : percentDecoded(line.substr(second + 1));
}

int readAll(int fd, std::string& text) {
    Platform::SystemCalls& calls = Platform::SystemCalls::current();
    std::array<char, 16384> buffer;
    for (;;) {
        const ssize_t got =
            Platform::retryingInterrupted([&] { return calls.read(fd, buffer.data(), buffer.size()); });
        if (got < 0)
            return errno;
        if (got == 0)
            return 0;
        text.append(buffer.data(), static_cast<std::size_t>(got));
    }
}

int writeAll(int fd, std::string_view text) {
    Platform::SystemCalls& calls = Platform::SystemCalls::current();
    while (!text.empty()) {
        const ssize_t wrote =
            Platform::retryingInterrupted([&] { return calls.write(fd, text.data(), text.size()); });
        if (wrote <= 0)
            return wrote < 0 ? errno : EIO;
        text.remove_prefix(static_cast<std::size_t>(wrote));
    }
    return 0;
}

} // namespace

int dropMissing(int trashFd, int filesFd) {
    Platform::SystemCalls& calls = Platform::SystemCalls::current();
    Platform::FileDescriptor cache(Platform::retryingInterrupted(
        [&] { return calls.openat(trashFd, kName, O_RDONLY | O_NOFOLLOW | O_CLOEXEC); }));
    if (!cache)
        return errno == ENOENT ? 0 : errno;
    std::string text;
    if (const int error = readAll(cache.get(), text))
        return error;
    cache.reset();

    std::string kept;
    bool dropped = false;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        const std::string_view line(text.data() + at, end - at);
        at = end + 1;
        const std::string item = itemOf(line);
        struct stat entry;
        const bool present = item.empty() || item.find('/') != std::string::npos ||
                             calls.fstatat(filesFd, item.c_str(), &entry, AT_SYMLINK_NOFOLLOW) == 0 ||
                             errno != ENOENT;
        if (!present) {
            dropped = true;
            continue;
        }
        kept.append(line);
        kept.push_back('\n');
    }
    if (!dropped)
        return 0;

    Platform::FileDescriptor replacement(Platform::retryingInterrupted([&] {
        return calls.openat(trashFd, kReplacement, O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC,
                            0600);
    }));
    if (!replacement)
        return errno;
    int error = writeAll(replacement.get(), kept);
    if (!error && calls.close(replacement.release()) != 0)
        error = errno;
    if (!error && Platform::retryingInterrupted(
                      [&] { return calls.renameat2(trashFd, kReplacement, trashFd, kName, 0); }) != 0)
        error = errno;
    if (error)
        calls.unlinkat(trashFd, kReplacement, 0); // our own half-written copy, never the cache itself
    return error;
}

} // namespace CleanerCore::TrashDirectorySizes
