#include "CleanerCore/DiskTree/ReferenceDiskTreeScanner.hpp"

#include "CleanerCore/Display/CoreL10n.hpp"
#include "CleanerCore/Files/DirectoryWalker.hpp"
#include "CleanerCore/Files/FileSize.hpp"

#include <tbb/task_group.h>

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <sys/stat.h>

namespace CleanerCore {
namespace {

namespace fs = std::filesystem;

std::optional<std::string> volumeOf(const std::string& path, bool followLinks) {
    struct stat info {};
    if ((followLinks ? ::stat(path.c_str(), &info) : ::lstat(path.c_str(), &info)) != 0)
        return std::nullopt;
    return std::to_string(info.st_dev);
}

} // namespace

class ReferenceDiskTreeScanner::ReferenceCounter {
public:
    explicit ReferenceCounter(const Reporting& reporting) : progress(reporting) {}

    void add(std::int64_t n, const std::string& folder) {
        const std::int64_t before = value.fetch_add(n);
        if (before / 5000 != (before + n) / 5000 && progress)
            progress(before + n, folder);
    }
    std::int64_t total() const { return value.load(); }

private:
    std::atomic<std::int64_t> value{0};
    const Reporting& progress;
};

namespace {

// The items of one folder; an item that can't be examined, or is a link, is left out. Every name
// listed is counted, before any is left out.
std::vector<ReferenceDiskTreeScanner::Entry> contents(const std::string& folder,
                                                      const std::function<void(std::int64_t)>& count) {
    std::vector<fs::path> paths;
    std::error_code error;
    for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error))
        paths.push_back(it->path());
    count(static_cast<std::int64_t>(paths.size()));
    std::vector<ReferenceDiskTreeScanner::Entry> entries;
    for (const fs::path& path : paths) {
        const fs::file_status status = fs::symlink_status(path, error);
        struct stat info {};
        if (error || fs::is_symlink(status) || ::lstat(path.c_str(), &info) != 0)
            continue;
        ReferenceDiskTreeScanner::Entry entry{URL::file(path.string())};
        const bool directory = fs::is_directory(status);
        entry.isPackage = directory && DirectoryWalker::isPackage(path.filename().string(), false, entry.url);
        entry.isFolder = directory && !entry.isPackage;
        entry.size = directory ? 0 : static_cast<std::int64_t>(info.st_blocks) * 512;
        entry.volume = volumeOf(path.string(), false);
        entries.push_back(std::move(entry));
    }
    return entries;
}

} // namespace

DiskNode::Pointer ReferenceDiskTreeScanner::scan(const Reporting& reporting, std::stop_token stop) const {
    const std::string path = standardizedPath(root);
    ReferenceCounter counter(reporting);
    DiskNode::Pointer tree = scanFolder(path, 0, volumeOf(path, true), counter, stop);
    if (reporting)
        reporting(counter.total(), std::nullopt);
    return tree;
}

DiskNode::Pointer ReferenceDiskTreeScanner::scan(const Progress& progress, std::stop_token stop) const {
    return scan(DiskTreeScanner::countOnly(progress), std::move(stop));
}

DiskNode::Pointer ReferenceDiskTreeScanner::scanFolder(const std::string& path, int depth,
                                                       const std::optional<std::string>& rootVolume,
                                                       ReferenceCounter& counter,
                                                       const std::stop_token& stop) const {
    std::vector<DiskNode::Pointer> children;
    std::vector<std::string> folders;
    for (Entry& entry : contents(path, [&](std::int64_t n) { counter.add(n, path); })) {
        if (entry.isFolder) {
            if (!entry.volume || (rootVolume && *entry.volume == *rootVolume))
                folders.push_back(entry.url.path());
            continue;
        }
        const std::int64_t size = entry.isPackage ? FileSize::referenceAllocatedSize(entry.url) : entry.size;
        children.push_back(std::make_shared<const DiskNode>(entry.url, std::nullopt, size, false, 1, false,
                                                            std::vector<DiskNode::Pointer>{}));
    }
    if (depth + 1 < 2) {
        std::vector<DiskNode::Pointer> results(folders.size());
        tbb::task_group group;
        for (std::size_t i = 0; i < folders.size(); ++i)
            group.run([&, i] {
                if (!stop.stop_requested())
                    results[i] = scanFolder(folders[i], depth + 1, rootVolume, counter, stop);
            });
        group.wait();
        for (DiskNode::Pointer& result : results)
            if (result)
                children.push_back(std::move(result));
    } else {
        for (const std::string& folder : folders) {
            if (stop.stop_requested())
                break;
            children.push_back(scanFolder(folder, depth + 1, rootVolume, counter, stop));
        }
    }
    return folderNode(path, std::move(children));
}

DiskNode::Pointer ReferenceDiskTreeScanner::folderNode(const std::string& path,
                                                       std::vector<DiskNode::Pointer> children) const {
    std::sort(children.begin(), children.end(),
              [](const DiskNode::Pointer& a, const DiskNode::Pointer& b) { return largestFirst(*a, *b); });
    std::vector<DiskNode::Pointer> kept;
    std::int64_t smallSize = 0, smallCount = 0;
    for (std::size_t i = 0; i < children.size(); ++i) {
        if (static_cast<std::int64_t>(i) >= alwaysKeep && children[i]->size() < minimumNodeSize) {
            smallSize += children[i]->size();
            smallCount += children[i]->itemCount();
        } else {
            kept.push_back(children[i]);
        }
    }
    if (smallCount > 0) {
        std::string aggregate;
        DiskNode::appendChild(aggregate, path, DiskNode::smallItemsComponent);
        kept.push_back(std::make_shared<const DiskNode>(
            URL::file(aggregate), CoreL10n::format("core.disk.smallItems", std::nullopt, {smallCount}),
            smallSize, false, smallCount, true, std::vector<DiskNode::Pointer>{}));
    }
    std::int64_t size = 0, count = 0;
    for (const DiskNode::Pointer& node : kept) {
        size += node->size();
        count += node->itemCount();
    }
    return std::make_shared<const DiskNode>(URL::file(path), std::nullopt, size, true, count, false,
                                            std::move(kept));
}

} // namespace CleanerCore
