#include "CleanerCore/Trash/TrashBin.hpp"

#include "CleanerCore/Display/NaturalOrder.hpp"
#include "CleanerCore/Files/DirectoryWalker.hpp"
#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "CleanerCore/Platform/FreedesktopTrash.hpp"
#include "CleanerCore/Platform/NoFollow.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"
#include "CleanerCore/Platform/VolumeLabel.hpp"
#include "CleanerCore/Removal/Cleaner.hpp"
#include "CleanerCore/Removal/SafetyGuard.hpp"
#include "CleanerCore/Trash/TrashDirectorySizes.hpp"
#include "CleanerCore/Trash/TrashInfo.hpp"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <set>
#include <string>
#include <sys/stat.h>
#include <utility>

namespace CleanerCore {
namespace {

using Platform::EntryKind;
using Platform::FileDescriptor;

// The one name that is bookkeeping and never content.
constexpr std::string_view kBookkeeping = ".DS_Store";

struct Item {
    std::string name;
    EntryKind kind = EntryKind::other;
    std::int64_t size = 0;
};

// The entries of the folder at `path`, opened into `folder`; nothing when it exists and can't be
// read to its end, an empty list when it does not exist.
std::optional<std::vector<Item>> listFolder(const std::string& path, FileDescriptor& folder, bool sized) {
    folder.reset(Platform::openDirectory(AT_FDCWD, path.c_str()));
    if (!folder)
        return errno == ENOENT ? std::optional(std::vector<Item>{}) : std::nullopt;
    std::vector<Item> items;
    const bool complete = Platform::listDirectory(
        folder.get(),
        [&](const Platform::ListedEntry& entry) {
            if (entry.name != kBookkeeping)
                items.push_back({std::string(entry.name), entry.kind, entry.allocatedSize});
        },
        {.statFolders = false, .statFiles = sized});
    if (!complete)
        return std::nullopt;
    if (sized) // folders are walked once the listing is over, so that listings never nest
        for (Item& item : items)
            if (item.kind == EntryKind::directory) {
                const FileDescriptor inside(Platform::openDirectory(folder.get(), item.name.c_str()));
                item.size = inside ? DirectoryWalker::allocatedSize(inside.get()) : 0;
            }
    return items;
}

std::optional<std::chrono::system_clock::time_point> dateAdded(int infoFd, const std::string& name) {
    if (infoFd < 0)
        return std::nullopt;
    Platform::SystemCalls& calls = Platform::SystemCalls::current();
    const std::string infoName = TrashInfo::fileName(name);
    const FileDescriptor info(Platform::retryingInterrupted([&] {
        return calls.openat(infoFd, infoName.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK);
    }));
    if (!info)
        return std::nullopt;
    std::array<char, 4096> text; // an info file holds a path and a date
    const ssize_t got =
        Platform::retryingInterrupted([&] { return calls.read(info.get(), text.data(), text.size()); });
    if (got <= 0)
        return std::nullopt;
    return TrashInfo::deletionDate(std::string_view(text.data(), static_cast<std::size_t>(got)));
}

// Equal under the collation (say, two names differing only in an ignorable character) still
// needs one fixed order, so the bytes break the tie.
bool namedBefore(std::string_view a, std::string_view b) {
    const int order = NaturalOrder::compare(a, b);
    return order != 0 ? order < 0 : a < b;
}

bool isDigits(std::string_view text) {
    return !text.empty() &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool isFolder(const std::string& path, struct stat& info) {
    return Platform::SystemCalls::current().fstatat(AT_FDCWD, path.c_str(), &info, AT_SYMLINK_NOFOLLOW) ==
               0 &&
           S_ISDIR(info.st_mode);
}

// The trash folders of the volume whose top folder is `top`, each folder once across calls.
void addBinsAt(const std::string& top, uid_t uid, const URL& home, std::set<std::pair<dev_t, ino_t>>& seen,
               std::vector<TrashBin>& bins) {
    const std::string base = top == "/" ? std::string() : top;
    const std::string uidName = std::to_string(uid);
    struct stat info;
    std::vector<std::string> candidates;
    // A shared .Trash counts only as a real sticky folder, as the trash itself requires.
    if (isFolder(base + "/.Trash", info) && (info.st_mode & S_ISVTX))
        candidates.push_back(base + "/.Trash/" + uidName);
    candidates.push_back(base + "/.Trash-" + uidName);
    for (const std::string& candidate : candidates)
        if (isFolder(candidate, info) && seen.insert({info.st_dev, info.st_ino}).second)
            bins.emplace_back(URL::file(candidate), home);
}

URL currentHome() {
    const char* home = std::getenv("HOME");
    return URL::file(home && *home ? home : "/");
}

void sortByPath(std::vector<TrashBin>& bins) {
    std::sort(bins.begin(), bins.end(),
              [](const TrashBin& a, const TrashBin& b) { return namedBefore(a.url.path(), b.url.path()); });
}

} // namespace

TrashBin::TrashBin(URL homeFolder)
    : url(URL::file(Platform::FreedesktopTrash::dataHomeFor(homeFolder.path()) + "/Trash")),
      home(std::move(homeFolder)) {}

std::optional<std::vector<URL>> TrashBin::items() const {
    FileDescriptor files;
    const auto listed = listFolder(filesURL().path(), files, false);
    if (!listed)
        return std::nullopt;
    std::vector<URL> urls;
    urls.reserve(listed->size());
    const URL folder = filesURL();
    for (const Item& item : *listed)
        urls.push_back(folder.appending(item.name));
    return urls;
}

std::optional<std::vector<TrashEntry>> TrashBin::entries() const {
    FileDescriptor files;
    const auto listed = listFolder(filesURL().path(), files, true);
    if (!listed)
        return std::nullopt;
    const FileDescriptor info(
        listed->empty() ? -1 : Platform::openDirectory(AT_FDCWD, url.appending("info").path().c_str()));
    std::vector<std::pair<TrashEntry, std::string>> named;
    named.reserve(listed->size());
    const URL folder = filesURL();
    for (const Item& item : *listed)
        named.push_back(
            {{folder.appending(item.name), item.size, dateAdded(info.get(), item.name)}, item.name});
    std::sort(named.begin(), named.end(), [](const auto& a, const auto& b) {
        if (a.first.size != b.first.size)
            return a.first.size > b.first.size;
        return namedBefore(a.second, b.second);
    });
    std::vector<TrashEntry> result;
    result.reserve(named.size());
    for (auto& [entry, name] : named)
        result.push_back(std::move(entry));
    return result;
}

std::optional<std::int64_t> TrashBin::size() const {
    FileDescriptor files;
    const auto listed = listFolder(filesURL().path(), files, true);
    if (!listed)
        return std::nullopt;
    std::int64_t total = 0;
    for (const Item& item : *listed)
        total += item.size;
    return total;
}

RemovalReport TrashBin::empty() const {
    FileDescriptor files;
    const auto listed = listFolder(filesURL().path(), files, true);
    if (!listed)
        return RemovalReport{.mode = RemovalMode::permanent};
    std::vector<CleanupItem> items;
    items.reserve(listed->size());
    const URL folder = filesURL();
    for (const Item& item : *listed)
        items.push_back({folder.appending(item.name), item.size, std::nullopt, true});
    // Emptying is for good whatever the user's removal mode: nothing goes to a second trash.
    const Cleaner cleaner(RemovalMode::permanent, home, SafetyGuard::runningAppBundle());
    RemovalReport report = cleaner.remove(items);

    // Then the info files of every item no longer there: those just removed, and any left over
    // from an item that vanished some other way. An item that stayed keeps its info, so it can
    // still be restored.
    Platform::SystemCalls& calls = Platform::SystemCalls::current();
    const URL infoFolder = url.appending("info");
    FileDescriptor info;
    std::vector<CleanupItem> orphans;
    if (const auto infos = listFolder(infoFolder.path(), info, false)) {
        for (const Item& entry : *infos) {
            const auto name = TrashInfo::itemName(entry.name);
            struct stat item;
            if (name &&
                (!files || (calls.fstatat(files.get(), name->c_str(), &item, AT_SYMLINK_NOFOLLOW) != 0 &&
                            errno == ENOENT)))
                orphans.push_back({infoFolder.appending(entry.name), 0, std::nullopt, true});
        }
    }
    if (!orphans.empty()) {
        const RemovalReport infos = cleaner.remove(orphans);
        report.failures.insert(report.failures.end(), infos.failures.begin(), infos.failures.end());
    }
    if (files && !report.removed.empty()) {
        // A stale line is harmless (readers skip names that are not in files/), so a cache that
        // can't be rewritten is left as it is.
        const FileDescriptor trash(Platform::openDirectory(AT_FDCWD, url.path().c_str()));
        if (trash)
            TrashDirectorySizes::dropMissing(trash.get(), files.get());
    }
    return report;
}

URL TrashBin::volumeURL() const {
    const URL bin = url.standardized();
    const std::string name = bin.lastPathComponent();
    const URL parent = bin.deletingLastPathComponent();
    if (name.starts_with(".Trash-") && isDigits(std::string_view(name).substr(7)))
        return parent;
    if (isDigits(name) && parent.lastPathComponent() == ".Trash")
        return parent.deletingLastPathComponent();
    return URL::file(Platform::MountTable::topDirectory(bin.path(), Platform::MountTable::current()));
}

std::string TrashBin::volumeName() const {
    const URL volume = volumeURL();
    for (const Platform::MountPoint& mount : Platform::MountTable::current())
        if (mount.path == volume.path())
            if (auto label = Platform::VolumeLabel::of(mount.device))
                return *label;
    return volume.lastPathComponent();
}

std::vector<TrashBin> TrashBin::otherVolumes(const URL& volumesRoot, uid_t uid) {
    FileDescriptor root;
    const auto volumes = listFolder(volumesRoot.path(), root, false);
    std::vector<TrashBin> bins;
    if (!volumes)
        return bins;
    const URL home = currentHome();
    std::set<std::pair<dev_t, ino_t>> seen;
    for (const Item& volume : *volumes)
        if (volume.kind == EntryKind::directory)
            addBinsAt(volumesRoot.appending(volume.name).path(), uid, home, seen, bins);
    sortByPath(bins);
    return bins;
}

std::vector<TrashBin> TrashBin::otherVolumes(std::span<const Platform::MountPoint> mounts, uid_t uid) {
    // Kernel views and automount points: no trash lives there, and looking would mount them.
    static constexpr std::array<std::string_view, 21> kNoTrash{
        "autofs",     "proc",    "sysfs",       "devtmpfs", "devpts", "cgroup",     "cgroup2",
        "securityfs", "debugfs", "tracefs",     "pstore",   "bpf",    "mqueue",     "hugetlbfs",
        "configfs",   "fusectl", "binfmt_misc", "efivarfs", "nsfs",   "rpc_pipefs", "selinuxfs"};
    const URL home = currentHome();
    std::set<std::pair<dev_t, ino_t>> seen;
    std::vector<TrashBin> bins;
    for (const Platform::MountPoint& mount : mounts)
        if (std::find(kNoTrash.begin(), kNoTrash.end(), mount.type) == kNoTrash.end())
            addBinsAt(mount.path, uid, home, seen, bins);
    sortByPath(bins);
    return bins;
}

} // namespace CleanerCore
