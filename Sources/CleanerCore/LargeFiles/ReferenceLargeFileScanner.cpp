#include "CleanerCore/LargeFiles/ReferenceLargeFileScanner.hpp"

#include "CleanerCore/Files/DirectoryWalker.hpp"
#include "CleanerCore/Files/FileSize.hpp"
#include "CleanerCore/Platform/FreedesktopTrash.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"
#include "CleanerCore/Removal/SafetyGuard.hpp"

#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>

namespace CleanerCore::ReferenceLargeFileScanner {
namespace {

namespace fs = std::filesystem;

LargeFile::Clock::time_point timeOf(const struct timespec& stamp) {
    return LargeFile::Clock::time_point(std::chrono::duration_cast<LargeFile::Clock::duration>(
        std::chrono::seconds(stamp.tv_sec) + std::chrono::nanoseconds(stamp.tv_nsec)));
}

} // namespace

Result scan(const LargeFileScanner& scanner) {
    Result result;
    const URL home = scanner.home.empty() && !scanner.roots.empty() ? scanner.roots.front() : scanner.home;
    const std::string trash =
        standardizedPath(Platform::FreedesktopTrash::dataHomeFor(home.path()) + "/Trash");
    const auto lstat = [](const std::string& path, struct stat& info) {
        return Platform::SystemCalls::current().fstatat(AT_FDCWD, path.c_str(), &info, AT_SYMLINK_NOFOLLOW) ==
               0;
    };

    for (const URL& root : scanner.roots) {
        const std::string top = standardizedPath(root.path());
        struct stat info {};
        if (!lstat(top, info) || !S_ISDIR(info.st_mode))
            continue; // a root that is a link gives nothing, like any other link
        std::error_code error;
        for (fs::recursive_directory_iterator it(top, fs::directory_options::skip_permission_denied, error),
             end;
             !error && it != end; it.increment(error)) {
            const std::string path = it->path().string();
            const std::string name = it->path().filename().string();
            if (name.starts_with('.')) {
                it.disable_recursion_pending();
                continue;
            }
            ++result.visited;
            if (it.depth() == 0 && scanner.skippedFolders.contains(name)) {
                it.disable_recursion_pending();
                continue;
            }
            if (!lstat(path, info))
                continue;
            std::int64_t size = 0;
            const URL url = URL::file(path);
            if (S_ISDIR(info.st_mode)) {
                if (path == trash) {
                    it.disable_recursion_pending();
                    continue;
                }
                if (!DirectoryWalker::isPackage(name, false, url))
                    continue;
                it.disable_recursion_pending();
                if (url.pathExtension() == "app")
                    continue;
                size = FileSize::referenceAllocatedSize(url);
            } else if (S_ISREG(info.st_mode)) {
                size = static_cast<std::int64_t>(info.st_blocks) * 512;
            } else {
                continue;
            }
            if (size < scanner.minimumSize ||
                SafetyGuard::isProtected(url, home, SafetyGuard::runningAppBundle()))
                continue;
            const auto used = std::max(timeOf(info.st_atim), timeOf(info.st_mtim));
            result.files.push_back(LargeFile{url, size, used, fileKindOf(url), false});
        }
    }
    return result;
}

} // namespace CleanerCore::ReferenceLargeFileScanner
