#include "CleanerCore/LargeFiles/LargeFileScanner.hpp"

#include "CleanerCore/Files/DirectoryWalker.hpp"
#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "CleanerCore/Platform/FreedesktopTrash.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"
#include "CleanerCore/Removal/SafetyGuard.hpp"

#include <tbb/global_control.h>
#include <tbb/task_arena.h>
#include <tbb/task_group.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <climits>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <mutex>
#include <sys/stat.h>
#include <thread>

namespace CleanerCore {
namespace {

using Platform::EntryKind;
using Platform::FileDescriptor;
using Platform::ListedEntry;

// Folders down to this depth below a root are listed in tasks of their own; each deeper subtree
// is one sequential walk.
constexpr int fanOutDepth = 6;
// Descriptors one sequential walk keeps open on its way down; the levels above are closed and
// opened again through ".." on the way back, once they are known to be the same folders.
constexpr std::size_t heldDescriptors = 32;

std::string joined(std::string_view folder, std::string_view name) {
    std::string out;
    out.reserve(folder.size() + 1 + name.size());
    out.append(folder);
    if (!folder.ends_with('/'))
        out.push_back('/');
    out.append(name);
    return out;
}

std::string_view extensionOf(std::string_view name) {
    const std::size_t dot = name.rfind('.');
    if (dot == std::string_view::npos || dot == 0 || dot + 1 == name.size())
        return {};
    return name.substr(dot + 1);
}

struct Identity {
    std::uint64_t device = 0, inode = 0;
    bool operator==(const Identity&) const = default;
};

bool identify(int fd, Identity& out) {
    struct statx info;
    if (Platform::SystemCalls::current().statx(fd, "", AT_EMPTY_PATH | AT_STATX_DONT_SYNC, STATX_INO,
                                               &info) != 0)
        return false;
    out = {(std::uint64_t{info.stx_dev_major} << 32) | info.stx_dev_minor, info.stx_ino};
    return true;
}

// Opens the folder above `childFd` through "..", provided it is still the folder that was left
// there; a folder moved meanwhile is not followed to wherever it went.
int reopenParent(int childFd, const Identity& expected) {
    FileDescriptor parent(Platform::openDirectory(childFd, ".."));
    Identity found;
    if (!parent || !identify(parent.get(), found) || !(found == expected))
        return -1;
    return parent.release();
}

LargeFile::Clock::time_point timeOf(const struct statx_timestamp& stamp) {
    return LargeFile::Clock::time_point(std::chrono::duration_cast<LargeFile::Clock::duration>(
        std::chrono::seconds(stamp.tv_sec) + std::chrono::nanoseconds(stamp.tv_nsec)));
}

// An entry that may be reported once it has been looked at closer.
struct Candidate {
    std::string name;
    std::int64_t size = 0;
    bool isPackage = false;
};

// What reading one folder gave.
struct Listing {
    std::string folders; // names of the subfolders to walk, each followed by a NUL
    std::vector<Candidate> candidates;
    std::int64_t visited = 0;
    bool stopped = false;
};

} // namespace

class LargeFileScanner::Walk {
public:
    Walk(const LargeFileScanner& scanner, const Events& events, std::stop_token stop)
        : scanner(scanner), events(events), stop(std::move(stop)),
          trashPath(standardizedPath(Platform::FreedesktopTrash::dataHomeFor(guardHome().path()) + "/Trash")),
          trashName(URL::file(trashPath).lastPathComponent()), ownBundle(SafetyGuard::runningAppBundle()) {}

    // The areas of one open root, sorted by name, as names.
    std::vector<std::string> areaNames(const Listing& listing) const {
        std::vector<std::string> names;
        for (std::size_t at = 0; at < listing.folders.size();) {
            names.emplace_back(listing.folders.data() + at);
            at += names.back().size() + 1;
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    // Reads one folder of `path`, whose entries lie `level` folders below a root.
    Listing list(int fd, const std::string& path, int level) const {
        Listing listing;
        Platform::listDirectory(
            fd,
            [&](const ListedEntry& entry) {
                if (listing.stopped || (listing.stopped = stop.stop_requested()))
                    return;
                if (entry.name.starts_with('.'))
                    return; // hidden, and so are the trash folders of other volumes
                ++listing.visited;
                if (level == 1 && scanner.skippedFolders.contains(std::string(entry.name)))
                    return;
                if (entry.kind == EntryKind::file) {
                    if (entry.allocatedSize >= scanner.minimumSize)
                        listing.candidates.push_back({std::string(entry.name), entry.allocatedSize, false});
                } else if (entry.kind == EntryKind::directory) {
                    const std::string_view extension = extensionOf(entry.name);
                    if (!extension.empty() &&
                        DirectoryWalker::isPackage(entry.name, false, URL::file(joined(path, entry.name)))) {
                        if (extension != "app") // programs are the uninstaller's business
                            listing.candidates.push_back({std::string(entry.name), 0, true});
                    } else if (entry.name != trashName || joined(path, entry.name) != trashPath) {
                        listing.folders.append(entry.name);
                        listing.folders.push_back('\0');
                    }
                }
                // links and special files: nothing
            },
            {.statFolders = false});
        return listing;
    }

    std::vector<LargeFile> run() {
        const std::size_t allowed =
            tbb::global_control::active_value(tbb::global_control::max_allowed_parallelism);
        const int threads = static_cast<int>(std::max(4u, 2 * std::thread::hardware_concurrency()));
        const tbb::global_control widen(tbb::global_control::max_allowed_parallelism,
                                        std::max(allowed, static_cast<std::size_t>(threads)));
        tbb::task_arena arena(threads);
        arena.execute([&] {
            for (const URL& root : scanner.roots)
                if (!stop.stop_requested())
                    walkRoot(standardizedPath(root.path()));
        });
        return std::move(found);
    }

    URL guardHome() const {
        return scanner.home.empty() && !scanner.roots.empty() ? scanner.roots.front() : scanner.home;
    }

private:
    void walkRoot(const std::string& path) {
        FileDescriptor fd(Platform::openDirectory(AT_FDCWD, path.c_str()));
        if (!fd)
            return;
        // Below the root the walk never passes a link, so every folder resolves to the root's
        // resolution and the names after it; the guard need not ask the file system each time.
        rootPath = path;
        resolvedRoot.reset();
        char buffer[PATH_MAX];
        if (Platform::SystemCalls::current().realpath(path.c_str(), buffer))
            resolvedRoot = buffer;
        Listing listing = list(fd.get(), path, 1);
        count(listing.visited);
        examine(fd.get(), path, listing.candidates);
        for (const std::string& name : areaNames(listing)) {
            if (stop.stop_requested())
                return;
            const std::string area = joined(path, name);
            emit(LargeFileScanEvent::entered(URL::file(area)));
            FileDescriptor child(Platform::openDirectory(fd.get(), name.c_str()));
            if (child)
                walkFolder(std::move(child), area, 1);
        }
    }

    // The subtree of the open folder `fd` at `depth` below its root, its subfolders in tasks of
    // their own while the depth allows.
    void walkFolder(FileDescriptor fd, const std::string& path, int depth) {
        if (depth >= fanOutDepth)
            return walkSequentially(std::move(fd), path);
        Listing listing = list(fd.get(), path, depth + 1);
        count(listing.visited);
        examine(fd.get(), path, listing.candidates);
        if (listing.folders.empty() || stop.stop_requested())
            return;
        // Each child opens itself from the parent's descriptor, which the last of them closes, so
        // descriptors don't stay open while whole subtrees are walked.
        struct Parent {
            FileDescriptor fd;
            std::atomic<std::size_t> unopened;
        } parent{std::move(fd), 0};
        std::vector<const char*> names;
        for (std::size_t at = 0; at < listing.folders.size(); at += std::strlen(names.back()) + 1)
            names.push_back(listing.folders.data() + at);
        parent.unopened = names.size();
        tbb::task_group group;
        for (const char* name : names)
            group.run([this, &parent, name, &path, depth] {
                FileDescriptor child;
                if (!stop.stop_requested())
                    child = FileDescriptor(Platform::openDirectory(parent.fd.get(), name));
                if (parent.unopened.fetch_sub(1) == 1)
                    parent.fd.reset();
                if (child)
                    walkFolder(std::move(child), joined(path, name), depth + 1);
            });
        group.wait();
    }

    // One level of a sequential descent; its subfolders' names sit in `folders` from `next` on.
    struct Level {
        int fd = -1; // -1 while parked
        std::string folders;
        std::size_t next = 0;
        std::size_t pathLength = 0;
        Identity identity; // known once parked, to recognise the folder when it is opened again
    };

    // The whole subtree of `fd` with a stack of its own, so no depth exhausts the thread's stack,
    // and with at most `heldDescriptors` descriptors open however deep it goes.
    void walkSequentially(FileDescriptor fd, const std::string& top) {
        std::string path = top;
        std::vector<Level> levels;
        const auto enter = [&](int folder) {
            Listing listing = list(folder, path, 2);
            count(listing.visited);
            examine(folder, path, listing.candidates);
            levels.push_back({folder, std::move(listing.folders), 0, path.size(), {}});
        };
        enter(fd.release());
        while (!levels.empty()) {
            Level& current = levels.back();
            if (current.next == current.folders.size() || stop.stop_requested()) {
                const int finished = current.fd;
                levels.pop_back();
                if (!levels.empty() && levels.back().fd < 0 && !stop.stop_requested()) {
                    Level& parent = levels.back();
                    parent.fd = finished < 0 ? -1 : reopenParent(finished, parent.identity);
                    if (parent.fd < 0)
                        parent.next = parent.folders.size(); // moved or gone: the rest of it is lost
                }
                if (finished >= 0)
                    Platform::SystemCalls::current().close(finished);
                continue;
            }
            const char* name = current.folders.data() + current.next;
            current.next += std::strlen(name) + 1;
            const int child = Platform::openDirectory(current.fd, name);
            if (child < 0)
                continue;
            if (levels.size() >= heldDescriptors && identify(current.fd, current.identity)) {
                Platform::SystemCalls::current().close(current.fd);
                current.fd = -1;
            }
            path.resize(current.pathLength);
            path.push_back('/');
            path.append(name);
            enter(child);
        }
    }

    // Measures packages, asks the guard and reads the dates of the candidates found in the open
    // folder `fd` at `path`, and reports those that stand.
    void examine(int fd, const std::string& path, std::vector<Candidate>& candidates) {
        for (Candidate& candidate : candidates) {
            if (stop.stop_requested())
                return;
            if (candidate.isPackage) {
                const FileDescriptor package(Platform::openDirectory(fd, candidate.name.c_str()));
                if (!package)
                    continue;
                candidate.size = DirectoryWalker::allocatedSize(package.get());
            }
            if (candidate.size < scanner.minimumSize)
                continue;
            URL url = URL::file(joined(path, candidate.name));
            const bool isProtected =
                resolvedRoot ? SafetyGuard::isProtected(url, *resolvedRoot + path.substr(rootPath.size()),
                                                        guardHome(), ownBundle)
                             : SafetyGuard::isProtected(url, guardHome(), ownBundle);
            if (isProtected)
                continue;
            struct statx info;
            if (Platform::SystemCalls::current().statx(fd, candidate.name.c_str(),
                                                       AT_SYMLINK_NOFOLLOW | AT_STATX_DONT_SYNC,
                                                       STATX_ATIME | STATX_MTIME, &info) != 0)
                continue; // gone meanwhile
            std::optional<LargeFile::Clock::time_point> lastUsed;
            if (info.stx_mask & STATX_ATIME)
                lastUsed = timeOf(info.stx_atime);
            if ((info.stx_mask & STATX_MTIME) && (!lastUsed || timeOf(info.stx_mtime) > *lastUsed))
                lastUsed = timeOf(info.stx_mtime);
            const FileKind kind = fileKindOf(url);
            report(LargeFile{std::move(url), candidate.size, lastUsed, kind, false});
        }
    }

    void count(std::int64_t entries) {
        if (entries == 0)
            return;
        const std::int64_t after = visited.fetch_add(entries, std::memory_order_relaxed) + entries;
        if ((after - entries) / visitedBatch == after / visitedBatch)
            return;
        const std::int64_t mark = after / visitedBatch * visitedBatch;
        const std::lock_guard lock(mutex);
        if (mark <= lastVisited)
            return; // another thread has already told a later count
        lastVisited = mark;
        if (events)
            events(LargeFileScanEvent::visited(mark));
    }

    void report(LargeFile file) {
        const std::lock_guard lock(mutex);
        found.push_back(std::move(file));
        if (events)
            events(LargeFileScanEvent::found(found.back()));
    }

    void emit(const LargeFileScanEvent& event) {
        const std::lock_guard lock(mutex);
        if (events)
            events(event);
    }

    const LargeFileScanner& scanner;
    const Events& events;
    const std::stop_token stop;
    const std::string trashPath, trashName;
    const std::optional<URL>& ownBundle;
    std::string rootPath;                    // the root being walked
    std::optional<std::string> resolvedRoot; // and its links resolved

    std::atomic<std::int64_t> visited{0};
    std::mutex mutex; // one event at a time, and the list in the order of its events
    std::int64_t lastVisited = 0;
    std::vector<LargeFile> found;
};

LargeFileScanner LargeFileScanner::forHome(const URL& home, std::int64_t minimumSize) {
    return LargeFileScanner{{home}, minimumSize, {"Library", ".Trash"}, home};
}

std::vector<URL> LargeFileScanner::areas() const {
    const Events none;
    const Walk walk(*this, none, {});
    std::vector<URL> out;
    for (const URL& root : roots) {
        const std::string path = standardizedPath(root.path());
        const FileDescriptor fd(Platform::openDirectory(AT_FDCWD, path.c_str()));
        if (!fd)
            continue;
        for (const std::string& name : walk.areaNames(walk.list(fd.get(), path, 1)))
            out.push_back(URL::file(joined(path, name)));
    }
    return out;
}

std::vector<LargeFile> LargeFileScanner::scan(const Events& events, std::stop_token stop) const {
    return Walk(*this, events, std::move(stop)).run();
}

std::vector<LargeFile> LargeFileScanner::scan(const Progress& progress, std::stop_token stop) const {
    Events events;
    if (progress)
        events = [&progress](const LargeFileScanEvent& event) {
            if (const auto* visited = event.as<LargeFileScanEvent::Visited>())
                progress(visited->count);
        };
    return scan(events, std::move(stop));
}

} // namespace CleanerCore
