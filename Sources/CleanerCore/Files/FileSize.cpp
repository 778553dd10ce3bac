#include "CleanerCore/Files/FileSize.hpp"

#include "CleanerCore/Files/DirectoryWalker.hpp"
#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"

#include <tbb/task_group.h>

#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>

namespace CleanerCore::FileSize {
namespace {

enum class Measure { sequential, parallel };

std::int64_t blocksInBytes(const struct stat& info) {
    return static_cast<std::int64_t>(info.st_blocks) * 512;
}

std::int64_t measure(const std::string& path, Measure how, std::stop_token stop) {
    struct stat info {};
    if (Platform::SystemCalls::current().fstatat(AT_FDCWD, path.c_str(), &info, AT_SYMLINK_NOFOLLOW) != 0)
        return 0;
    if (S_ISREG(info.st_mode))
        return blocksInBytes(info);
    if (!S_ISDIR(info.st_mode))
        return 0;
    if (how == Measure::parallel)
        return DirectoryWalker::allocatedSize(path, true, 0, std::move(stop));
    const Platform::FileDescriptor fd(Platform::openDirectory(AT_FDCWD, path.c_str()));
    return fd ? DirectoryWalker::allocatedSize(fd.get()) : 0;
}

} // namespace

std::int64_t allocatedSize(const URL& url) {
    return measure(url.path(), Measure::sequential, {});
}

std::int64_t parallelAllocatedSize(const URL& url, std::stop_token stop) {
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
    const std::string path = url.path();
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
