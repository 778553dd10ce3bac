#include "CleanerCore/DiskTree/DiskTreeScanner.hpp"

#include "CleanerCore/Display/CoreL10n.hpp"
#include "CleanerCore/Files/DirectoryWalker.hpp"
#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "CleanerCore/Platform/FolderIdentity.hpp"
#include "CleanerCore/Platform/SharedFolder.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"

#include <tbb/concurrent_unordered_map.h>
#include <tbb/global_control.h>
#include <tbb/task_arena.h>
#include <tbb/task_group.h>

#include <algorithm>
#include <cerrno>
#include <atomic>
#include <chrono>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <thread>

namespace CleanerCore {
namespace {

using Platform::EntryKind;
using Platform::FileDescriptor;
using Platform::ListedEntry;
using FolderPath = DiskNode::FolderPath;

// Folders of depth 1 to 5 are listed in tasks of their own; each folder of depth 6 is one
// sequential walk.
constexpr int fanOutDepth = 6;
constexpr std::int64_t reportBlock = 5000;
constexpr std::uint64_t reportInterval = 100'000'000; // nanoseconds
// Descriptors one sequential walk keeps open on its way down; levels above are closed and opened
// again by name when the walk comes back to them.
constexpr std::size_t heldDescriptors = 32;
// Files of one folder gathered before those that can't survive the fold are dropped.
constexpr std::size_t prefoldAt = 1024;

std::uint64_t uptimeNanoseconds() {
    return static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::nanoseconds>(
                                          std::chrono::steady_clock::now().time_since_epoch())
                                          .count());
}

std::string childPath(std::string_view folder, std::string_view name) {
    std::string out;
    out.reserve(folder.size() + 1 + name.size());
    DiskNode::appendChild(out, folder, name);
    return out;
}

// `path` + "/" + `name`, in place.
void descend(std::string& path, std::string_view name) {
    if (!path.ends_with('/'))
        path.push_back('/');
    path.append(name);
}

struct NameRef {
    std::uint32_t offset = 0;
    std::uint16_t length = 0; // a name has at most NAME_MAX (255) bytes
};

} // namespace

// One child of the folder being built: a scanned subfolder (`node`) or, while it is not known to
// survive the fold, a file, other object or package as a plain name and size.
struct DiskTreeScanner::Child {
    DiskNode::Pointer node; // the `node` case; null for a leaf
    std::int64_t size = 0;
    NameRef name; // a leaf's name in its listing's `names`
    bool isPackage = false;
};

// What reading one folder gave: leaves for its files, and the names of its subfolders and packages.
struct DiskTreeScanner::Listing {
    std::string names; // every kept name, each followed by a NUL for openat
    std::vector<Child> children;
    std::vector<NameRef> folders;
    std::vector<NameRef> packages;
    // Files already known to end up in the aggregate, dropped while the folder was read.
    std::int64_t foldedSize = 0;
    std::int64_t foldedCount = 0;

    std::string_view view(NameRef ref) const {
        return std::string_view(names).substr(ref.offset, ref.length);
    }
    const char* cString(NameRef ref) const { return names.data() + ref.offset; }
    NameRef keep(std::string_view name) {
        const NameRef ref{static_cast<std::uint32_t>(names.size()), static_cast<std::uint16_t>(name.size())};
        names.append(name);
        names.push_back('\0');
        return ref;
    }
    // Rewrites `names` with only the names still referred to.
    void compact() {
        std::string kept;
        kept.reserve(names.size());
        const auto move = [&](NameRef& ref) {
            const std::string_view name = view(ref);
            ref.offset = static_cast<std::uint32_t>(kept.size());
            kept.append(name);
            kept.push_back('\0');
        };
        for (Child& child : children)
            if (!child.node)
                move(child.name);
        for (NameRef& ref : folders)
            move(ref);
        for (NameRef& ref : packages)
            move(ref);
        names = std::move(kept);
    }
};

// The item count of one scan, shared by its tasks without a lock, and the throttle of its reports.
class DiskTreeScanner::Counter {
public:
    explicit Counter(const Reporting& reporting) : progress(reporting) {}

    void add(std::int64_t n, const std::string& folder) {
        const std::int64_t before = value.fetch_add(n, std::memory_order_relaxed);
        const std::int64_t after = before + n;
        if (before / reportBlock == after / reportBlock)
            return;
        const std::uint64_t now = uptimeNanoseconds();
        std::uint64_t last = lastReport.load(std::memory_order_relaxed);
        if (last != 0 && now - last < reportInterval)
            return;
        if (!lastReport.compare_exchange_strong(last, now, std::memory_order_relaxed))
            return; // another thread reports this time
        if (progress)
            progress(after, folder);
    }

    std::int64_t total() const { return value.load(std::memory_order_relaxed); }

private:
    std::atomic<std::int64_t> value{0};
    std::atomic<std::uint64_t> lastReport{0};
    const Reporting& progress;
};

class DiskTreeScanner::Walk {
public:
    Walk(const DiskTreeScanner& scanner, Counter& counter, std::uint64_t device, std::stop_token stop,
         UnreadableFolders* unreadable)
        : scanner(scanner), counter(counter), device(device), stop(std::move(stop)), unreadable(unreadable) {}

    // Lists `fd` and, while fan-out is allowed, measures its subfolders and packages in a task group.
    DiskNode::Pointer scanFolder(FileDescriptor fd, std::string path, FolderPath::Pointer folderPath, int depth) {
        if (!fansOut(path))
            return scanFolderSync(fd.get(), std::move(path), std::move(folderPath));
        Listing listing = list(fd.get(), path);
        const std::size_t folderCount = listing.folders.size();
        const std::size_t opens = folderCount + listing.packages.size();
        if (opens == 0)
            return folderNode(std::move(folderPath), listing);
        // Every subfolder is opened by name from this folder's descriptor, closed once they all are.
        Platform::SharedFolder folder(std::move(fd), opens);
        std::vector<std::optional<Child>> results(opens);
        tbb::task_group group;
        for (std::size_t i = 0; i < folderCount; ++i)
            group.run([&, i] {
                const NameRef name = listing.folders[i];
                results[i] = folderTask(folder, listing.cString(name), childPath(path, listing.view(name)),
                                        FolderPath::child(folderPath, listing.view(name)), depth + 1);
            });
        for (std::size_t i = 0; i < listing.packages.size(); ++i)
            group.run([&, i] {
                const NameRef name = listing.packages[i];
                if (stop.stop_requested())
                    return folder.opened();
                FileDescriptor package(Platform::openDirectory(folder.fd(), listing.cString(name)));
                const int error = errno;
                folder.opened();
                std::int64_t size = 0;
                if (package)
                    size = DirectoryWalker::allocatedSize(std::move(package), childPath(path, listing.view(name)),
                                                          true, 0, stop, unreadable);
                else
                    UnreadableFolders::failed(unreadable, error);
                results[folderCount + i] = Child{nullptr, size, name, true};
            });
        group.wait();
        for (std::optional<Child>& result : results)
            if (result)
                listing.children.push_back(std::move(*result));
        return folderNode(std::move(folderPath), listing);
    }

    // The subtree of the open folder `fd` (not closed here), one folder after another with a stack
    // of its own, so no depth can exhaust the thread's stack. The top of the stack is always open;
    // below the first `heldDescriptors` levels, a level gives its descriptor back while its
    // subfolders are walked and gets it again through their "..", checked to be the same folder.
    DiskNode::Pointer scanFolderSync(int fd, std::string path, FolderPath::Pointer folderPath) {
        Descent descent;
        descent.path = std::move(path);
        enter(descent, fd, false, std::move(folderPath));
        for (;;) {
            Level& top = descent.stack.back();
            if (top.next < top.listing.folders.size() && !stop.stop_requested()) {
                const NameRef name = top.listing.folders[top.next++];
                const int childFd = Platform::openDirectory(top.fd, top.listing.cString(name));
                const int error = errno;
                descend(descent.path, top.listing.view(name));
                FolderPath::Pointer childFolder = FolderPath::child(top.folderPath, top.listing.view(name));
                if (childFd < 0) {
                    UnreadableFolders::failed(unreadable, error);
                    top.listing.children.push_back(asChild(emptyFolder(std::move(childFolder))));
                    descent.path.resize(top.pathLength);
                    continue;
                }
                if (top.owned && descent.stack.size() > heldDescriptors &&
                    Platform::FolderIdentity::of(top.fd, top.identity)) {
                    Platform::SystemCalls::current().close(top.fd);
                    top.fd = -1;
                }
                enter(descent, childFd, true, std::move(childFolder));
                continue;
            }
            Level done = std::move(top);
            descent.stack.pop_back();
            DiskNode::Pointer node = folderNode(std::move(done.folderPath), done.listing);
            if (descent.stack.empty())
                return node;
            Level& parent = descent.stack.back();
            descent.path.resize(parent.pathLength);
            if (parent.fd < 0 && !stop.stop_requested()) {
                parent.fd = Platform::reopenParent(done.fd, parent.identity);
                if (parent.fd < 0) // moved or swapped meanwhile: what it still held can't be reached
                    abandon(parent);
            }
            if (done.fd >= 0)
                Platform::SystemCalls::current().close(done.fd);
            parent.listing.children.push_back(asChild(std::move(node)));
        }
    }

    DiskNode::Pointer emptyFolder(FolderPath::Pointer folderPath) {
        Listing nothing;
        return folderNode(std::move(folderPath), nothing);
    }

private:
    struct Level {
        int fd = -1; // -1 while parked, to bound the open descriptors
        bool owned = true;
        std::size_t pathLength = 0; // this level's path is the descent's path up to here
        FolderPath::Pointer folderPath;
        Listing listing;
        std::size_t next = 0;              // the next of listing.folders to descend into
        Platform::FolderIdentity identity; // known once parked
    };

    // One path for the whole stack, grown and cut back as the walk goes down and up, so that a deep
    // chain does not hold one full path per level.
    struct Descent {
        std::string path;
        std::vector<Level> stack;
    };

    static Child asChild(DiskNode::Pointer node) {
        const std::int64_t size = node->size();
        return Child{std::move(node), size};
    }

    bool fansOut(std::string_view path) const {
        return !stop.stop_requested() && !DirectoryWalker::isInContainers(path);
    }

    std::optional<Child> folderTask(Platform::SharedFolder& parent, const char* name, std::string path,
                                    FolderPath::Pointer folderPath, int depth) {
        if (stop.stop_requested()) {
            parent.opened();
            return std::nullopt;
        }
        FileDescriptor fd(Platform::openDirectory(parent.fd(), name));
        const int error = errno;
        parent.opened();
        if (!fd) {
            UnreadableFolders::failed(unreadable, error);
            return asChild(emptyFolder(std::move(folderPath)));
        }
        if (depth < fanOutDepth && fansOut(path))
            return asChild(scanFolder(std::move(fd), std::move(path), std::move(folderPath), depth));
        return asChild(scanFolderSync(fd.get(), std::move(path), std::move(folderPath)));
    }

    Listing list(int fd, const std::string& path) {
        Listing listing;
        std::int64_t count = 0;
        std::size_t foldAt = prefoldAt;
        const bool whole = Platform::listDirectory(fd, [&](const ListedEntry& entry) {
            if (listing.children.size() >= foldAt) {
                prefold(listing);
                foldAt = std::max(foldAt, 2 * listing.children.size());
            }
            if (entry.name.starts_with("._"))
                return; // AppleDouble companions are neither shown nor counted
            ++count;
            switch (entry.kind) {
            case EntryKind::symlink:
                return;
            case EntryKind::file:
                listing.children.push_back(Child{nullptr, entry.allocatedSize, listing.keep(entry.name)});
                return;
            case EntryKind::other:
                listing.children.push_back(Child{nullptr, 0, listing.keep(entry.name)});
                return;
            case EntryKind::directory:
                if (DirectoryWalker::hasPackageExtension(entry.name)) {
                    listing.packages.push_back(listing.keep(entry.name));
                } else if (!entry.isMountRoot && entry.device == device) {
                    listing.folders.push_back(listing.keep(entry.name));
                }
                return;
            }
        });
        if (!whole && unreadable)
            unreadable->add();
        counter.add(count, path);
        prefold(listing);
        return listing;
    }

    // Drops the files that can't survive the fold whatever the subfolders turn out to be: beyond
    // the big ones, only the `alwaysKeep` first small files can stay. Keeps a folder of a million
    // files from holding a million entries while it is read or while its subfolders are walked.
    void prefold(Listing& listing) {
        std::vector<Child>& children = listing.children;
        const auto kept = survivors(children, listing);
        if (kept == children.end())
            return;
        for (auto it = kept; it != children.end(); ++it) {
            listing.foldedSize += it->size;
            ++listing.foldedCount;
        }
        children.erase(kept, children.end());
        listing.compact();
    }

    // The order of a folder's children: larger first, then by name.
    static auto before(const Listing& listing) {
        return [&listing](const Child& a, const Child& b) {
            if (a.size != b.size)
                return a.size > b.size;
            const auto nameOf = [&](const Child& child) {
                return child.node ? child.node->name() : listing.view(child.name);
            };
            return nameOf(a) < nameOf(b);
        };
    }

    // Moves the children that survive the fold to the front, unordered, and returns their end:
    // those of at least the minimum size, and of the others those that rank among the first
    // `alwaysKeep` of the folder.
    std::vector<Child>::iterator survivors(std::vector<Child>& children, const Listing& listing) const {
        const auto big = std::partition(children.begin(), children.end(), [&](const Child& child) {
            return child.size >= scanner.minimumNodeSize;
        });
        const std::int64_t room = std::max<std::int64_t>(scanner.alwaysKeep, 0) - (big - children.begin());
        const auto kept = big + std::clamp<std::int64_t>(room, 0, children.end() - big);
        if (kept != children.end())
            std::nth_element(big, kept, children.end(), before(listing));
        return kept;
    }

    void enter(Descent& descent, int fd, bool owned, FolderPath::Pointer folderPath) {
        Level level{fd, owned, descent.path.size(), std::move(folderPath), {}, 0, {}};
        level.listing = list(fd, descent.path);
        for (const NameRef name : level.listing.packages) {
            const FileDescriptor package(Platform::openDirectory(fd, level.listing.cString(name)));
            if (!package)
                UnreadableFolders::failed(unreadable, errno);
            const std::int64_t size = package ? DirectoryWalker::allocatedSize(package.get(), unreadable) : 0;
            level.listing.children.push_back(Child{nullptr, size, name, true});
        }
        descent.stack.push_back(std::move(level));
    }

    // A level that could not be got back: the subfolders it had left become empty folders.
    void abandon(Level& level) {
        if (level.next < level.listing.folders.size() && unreadable)
            unreadable->add();
        for (; level.next < level.listing.folders.size(); ++level.next) {
            const std::string_view name = level.listing.view(level.listing.folders[level.next]);
            level.listing.children.push_back(asChild(emptyFolder(FolderPath::child(level.folderPath, name))));
        }
    }

    // The node of one folder: its children ordered, the small ones folded into one aggregate.
    DiskNode::Pointer folderNode(FolderPath::Pointer folderPath, Listing& listing) {
        std::vector<Child>& children = listing.children;
        std::int64_t total = listing.foldedSize, count = listing.foldedCount;
        for (const Child& child : children) {
            total += child.size;
            count += child.node ? child.node->itemCount() : 1;
        }
        const auto kept = survivors(children, listing);
        std::sort(children.begin(), kept, before(listing));

        std::int64_t smallSize = listing.foldedSize, smallCount = listing.foldedCount;
        for (auto it = kept; it != children.end(); ++it) {
            smallSize += it->size;
            smallCount += it->node ? it->node->itemCount() : 1;
        }
        const std::string_view smallName = smallCount > 0 ? smallItemsName(smallCount) : std::string_view();

        // One block for the folder's path, the names of its kept leaves and the leaves themselves.
        auto block = std::make_shared<DiskNode::Block>();
        DiskNode::Text& text = block->text;
        const std::string_view folderName = folderPath->lastName();
        std::size_t length = folderName.size() + smallName.size(), leafCount = smallCount > 0 ? 1 : 0;
        for (auto it = children.begin(); it != kept; ++it)
            if (!it->node) {
                length += it->name.length;
                ++leafCount;
            }
        text.chars.reserve(length);
        text.chars.append(folderName);
        text.folder = std::move(folderPath);
        block->leaves.reserve(leafCount);
        std::vector<DiskNode::Pointer> nodes;
        nodes.reserve(static_cast<std::size_t>(kept - children.begin()) + (smallCount > 0 ? 1 : 0));
        const auto addLeaf = [&](std::string_view name, std::int64_t size, std::int64_t items,
                                 bool isAggregate) {
            const std::size_t offset = text.chars.size();
            text.chars.append(name);
            const DiskNode& leaf =
                block->leaves.emplace_back(text, nullptr, false, offset, name.size(), size, false, items,
                                           isAggregate, std::vector<DiskNode::Pointer>{});
            nodes.push_back(DiskNode::Pointer(block, &leaf));
        };
        for (auto it = children.begin(); it != kept; ++it) {
            if (it->node)
                nodes.push_back(std::move(it->node));
            else
                addLeaf(listing.view(it->name), it->size, 1, false);
        }
        if (smallCount > 0)
            addLeaf(smallName, smallSize, smallCount, true);
        children.clear();
        return std::make_shared<const DiskNode>(text, std::move(block), true, 0, folderName.size(), total, true,
                                                count, false,
                                                std::move(nodes));
    }

    // The aggregate's name, formatted once per count and scan rather than once per folder.
    std::string_view smallItemsName(std::int64_t count) {
        if (auto found = smallNames.find(count); found != smallNames.end())
            return found->second;
        std::string name = CoreL10n::format("core.disk.smallItems", std::nullopt, {count});
        return smallNames.emplace(count, std::move(name)).first->second;
    }

    const DiskTreeScanner& scanner;
    Counter& counter;
    const std::uint64_t device;
    const std::stop_token stop;
    UnreadableFolders* const unreadable;
    tbb::concurrent_unordered_map<std::int64_t, std::string> smallNames;
};

int DiskTreeScanner::walkers() {
    return static_cast<int>(std::max(8u, 2 * std::thread::hardware_concurrency()));
}

DiskNode::Pointer DiskTreeScanner::scan(const Reporting& reporting, std::stop_token stop,
                                        UnreadableFolders* unreadable) const {
    const std::string path = standardizedPath(root);
    Counter counter(reporting);
    FileDescriptor fd(Platform::openDirectory(AT_FDCWD, path.c_str()));
    if (!fd)
        UnreadableFolders::failed(unreadable, errno);
    // The device of the folder opened, not of what its path may name by the time it is looked at.
    Platform::FolderIdentity identity{~std::uint64_t{0}, 0};
    if (fd && !Platform::FolderIdentity::of(fd.get(), identity))
        identity.device = ~std::uint64_t{0};
    Walk walk(*this, counter, identity.device, stop, unreadable);
    DiskNode::Pointer tree;
    if (!fd) {
        tree = walk.emptyFolder(DiskNode::FolderPath::root(path));
    } else {
        // The pool may have more threads than cores while this scan runs.
        const auto allowed = tbb::global_control::active_value(tbb::global_control::max_allowed_parallelism);
        const tbb::global_control widen(tbb::global_control::max_allowed_parallelism,
                                        std::max<std::size_t>(allowed, static_cast<std::size_t>(walkers())));
        tbb::task_arena arena(walkers());
        arena.execute([&] { tree = walk.scanFolder(std::move(fd), path, DiskNode::FolderPath::root(path), 0); });
    }
    if (reporting)
        reporting(counter.total(), std::nullopt);
    return tree;
}

DiskNode::Pointer DiskTreeScanner::scan(const Progress& progress, std::stop_token stop) const {
    return scan(countOnly(progress), std::move(stop));
}

DiskTreeScanner::Reporting DiskTreeScanner::countOnly(const Progress& progress) {
    if (!progress)
        return {};
    return [progress](std::int64_t count, const std::optional<std::string>&) { progress(count); };
}

} // namespace CleanerCore
