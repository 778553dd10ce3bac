#include "CleanerCore/Files/FileSize.hpp"

#include "CleanerCore/Files/DirectoryWalker.hpp"
#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"

#include <tbb/task_group.h>

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>

namespace CleanerCore::FileSize {
namespace {

enum class Measure { sequential, parallel };

std::int64_t blocksInBytes(const struct stat& info) {
    return static_cast<std::int64_t>(info.st_blocks) * 512;
}

Measurement measure(const std::string& written, Measure how, std::stop_token stop) {
    Measurement out;
    // "link/" would make the kernel look at the link's target; the link itself is what is asked about.
    const std::string path = standardizedPath(written);
    struct stat info {};
    if (Platform::SystemCalls::current().fstatat(AT_FDCWD, path.c_str(), &info, AT_SYMLINK_NOFOLLOW) != 0) {
        out.error = errno;
        return out;
    }
    if (S_ISREG(info.st_mode))
        out.bytes = blocksInBytes(info);
    if (!S_ISDIR(info.st_mode))
        return out;
    Platform::FileDescriptor fd(Platform::openDirectory(AT_FDCWD, path.c_str()));
    if (!fd) {
        out.error = errno;
        return out;
    }
    UnreadableFolders unreadable;
    out.bytes = how == Measure::parallel
                    ? DirectoryWalker::allocatedSize(std::move(fd), path, true, 0, std::move(stop), &unreadable)
                    : DirectoryWalker::allocatedSize(fd.get(), &unreadable);
    out.unreadableFolders = unreadable.total();
    return out;
}

} // namespace

std::int64_t allocatedSize(const URL& url) {
    return measure(url.path(), Measure::sequential, {}).bytes;
}

std::int64_t parallelAllocatedSize(const URL& url, std::stop_token stop) {
    return measure(url.path(), Measure::parallel, std::move(stop)).bytes;
}

Measurement measure(const URL& url, std::stop_token stop) {
    return measure(url.path(), Measure::parallel, std::move(stop));
}

std::unordered_map<URL, std::int64_t> sizes(const std::vector<URL>& urls, std::stop_token stop) {
    std::unordered_map<URL, std::int64_t> result;
    std::vector<std::pair<const URL*, std::int64_t*>> contained, others;
    for (const URL& url : urls) {
        const auto [slot, fresh] = result.try_emplace(url, 0);
        if (fresh)
            (DirectoryWalker::isInContainers(url.path()) ? contained : others)
                .emplace_back(&slot->first, &slot->second);
    }
    // Each task writes only its own slot; the map is not resized while they run.
    tbb::task_group group;
    for (const auto& [url, size] : others)
        group.run([url, size, stop] { *size = parallelAllocatedSize(*url, stop); });
    if (!contained.empty())
        group.run([&contained] {
            for (const auto& [url, size] : contained)
                *size = allocatedSize(*url);
        });
    group.wait();
    return result;
}

std::int64_t referenceAllocatedSize(const URL& url) {
    namespace fs = std::filesystem;
    const auto allocated = [](const fs::path& file) -> std::int64_t {
        struct stat info {};
        return ::lstat(file.c_str(), &info) == 0 && S_ISREG(info.st_mode) ? blocksInBytes(info) : 0;
    };
    const std::string path = standardizedPath(url.path());
    std::error_code error;
    const fs::file_status top = fs::symlink_status(path, error);
    if (error || !fs::is_directory(top))
        return error ? 0 : allocated(path);
    std::int64_t total = 0;
    for (fs::recursive_directory_iterator it(path, fs::directory_options::skip_permission_denied, error), end;
         !error && it != end; it.increment(error))
        total += allocated(it->path());
    return total;
}

} // namespace CleanerCore::FileSize
