#include "CleanerCore/Platform/FreedesktopTrash.hpp"

#include "CleanerCore/Files/URL.hpp"
#include "CleanerCore/Platform/MountRoots.hpp"
#include "CleanerCore/Platform/NoFollow.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"

#include <climits>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <fmt/format.h>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

namespace CleanerCore::Platform {
namespace {

constexpr int kFolderFlags = O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
constexpr std::string_view kInfoSuffix = ".trashinfo";
constexpr int kNumberedAttempts = 100; // "name 2" ... "name 100"; then random suffixes
constexpr int kAllAttempts = 1000;

// Creates `name` in `parentFd` if missing (mode 0700) and opens it, never through a link.
int ensureFolder(int parentFd, const char* name) {
    SystemCalls& calls = SystemCalls::current();
    if (retryingInterrupted([&] { return calls.mkdirat(parentFd, name, 0700); }) != 0 && errno != EEXIST)
        return -1;
    return retryingInterrupted([&] { return calls.openat(parentFd, name, kFolderFlags); });
}

// files/ and info/ inside the open trash folder `trashFd`.
int openBin(int trashFd, FileDescriptor& files, FileDescriptor& info) {
    files.reset(ensureFolder(trashFd, "files"));
    if (!files)
        return errno;
    info.reset(ensureFolder(trashFd, "info"));
    return info ? 0 : errno;
}

// The last byte offset at which `text` may be cut without splitting a UTF-8 sequence.
std::size_t utf8Cut(std::string_view text, std::size_t limit) {
    if (text.size() <= limit)
        return text.size();
    std::size_t cut = limit;
    while (cut > 0 && (static_cast<unsigned char>(text[cut]) & 0xC0) == 0x80)
        --cut;
    return cut;
}

// "report.pdf", then "report 2.pdf"..., then "report.pdf.1f3a9c07"...; always short enough for
// the info file's name to fit.
std::string candidateName(const std::string& name, int attempt, std::mt19937& random) {
    const std::size_t dot = name.rfind('.');
    const bool hasExtension = dot != std::string::npos && dot > 0 && name.size() - dot <= 16;
    std::string stem = hasExtension ? name.substr(0, dot) : name;
    const std::string extension = hasExtension ? name.substr(dot) : std::string{};
    std::string suffix;
    if (attempt > 0 && attempt < kNumberedAttempts)
        suffix = fmt::format(" {}", attempt + 1);
    else if (attempt >= kNumberedAttempts)
        suffix = fmt::format(".{:08x}", random());
    const std::size_t room = NAME_MAX - kInfoSuffix.size() - extension.size() - suffix.size();
    if (attempt == 0 && name.size() + kInfoSuffix.size() <= NAME_MAX)
        return name;
    stem.resize(utf8Cut(stem, room));
    return stem + suffix + extension;
}

int writeAll(int fd, const std::string& text) {
    SystemCalls& calls = SystemCalls::current();
    std::size_t done = 0;
    while (done < text.size()) {
        const ssize_t wrote =
            retryingInterrupted([&] { return calls.write(fd, text.data() + done, text.size() - done); });
        if (wrote < 0)
            return errno;
        if (wrote == 0)
            return EIO;
        done += static_cast<std::size_t>(wrote);
    }
    return 0;
}

} // namespace

FreedesktopTrash::FreedesktopTrash(std::string dataHomePath, std::vector<MountPoint> mountList)
    : dataHome(std::move(dataHomePath)), mounts(std::move(mountList)), random(std::random_device{}()) {}

std::string FreedesktopTrash::dataHomeFor(const std::string& homePath) {
    const char* configured = std::getenv("XDG_DATA_HOME");
    if (configured && configured[0] == '/')
        return configured;
    return homePath + "/.local/share";
}

std::string FreedesktopTrash::infoText(const std::string& originalPath,
                                       std::chrono::system_clock::time_point when) {
    const std::time_t seconds = std::chrono::system_clock::to_time_t(when);
    std::tm local{};
    localtime_r(&seconds, &local);
    char date[32];
    std::strftime(date, sizeof date, "%Y-%m-%dT%H:%M:%S", &local);
    return fmt::format("[Trash Info]\nPath={}\nDeletionDate={}\n", percentEncodedPath(originalPath), date);
}

FreedesktopTrash::Bin& FreedesktopTrash::homeBin() {
    if (home)
        return *home;
    home.emplace();
    SystemCalls& calls = SystemCalls::current();
    const std::string trashPath = dataHome + "/Trash";
    // The data home may be missing on a fresh account: make it, then never go through a link below it.
    std::string made;
    for (std::size_t slash = dataHome.find('/', 1);; slash = dataHome.find('/', slash + 1)) {
        made = dataHome.substr(0, slash);
        if (retryingInterrupted([&] { return calls.mkdirat(AT_FDCWD, made.c_str(), 0700); }) != 0 &&
            errno != EEXIST) {
            home->problem = RemovalResult::noTrash(errno, trashPath);
            return *home;
        }
        if (slash == std::string::npos)
            break;
    }
    char real[PATH_MAX];
    FileDescriptor base(calls.realpath(dataHome.c_str(), real) ? openFolderNoFollow(real) : -1);
    struct stat info;
    if (!base || calls.fstat(base.get(), &info) != 0) {
        home->problem = RemovalResult::noTrash(errno, trashPath);
        return *home;
    }
    // Items on this volume go to the home trash or nowhere, even when it can't be made.
    homeDevice = info.st_dev;
    FileDescriptor trash(ensureFolder(base.get(), "Trash"));
    const int error = trash ? openBin(trash.get(), home->files, home->info) : errno;
    if (error)
        home->problem = RemovalResult::noTrash(error, trashPath);
    return *home;
}

FreedesktopTrash::Bin& FreedesktopTrash::volumeBin(dev_t device, const std::string& path) {
    if (auto found = volumes.find(device); found != volumes.end())
        return found->second;
    Bin& bin = volumes[device];
    SystemCalls& calls = SystemCalls::current();
    bin.topDirectory = MountTable::topDirectory(path, mounts);
    FileDescriptor top(openFolderNoFollow(bin.topDirectory));
    struct stat info;
    const uid_t uid = ::getuid();
    const std::string uidName = std::to_string(uid);
    const std::string ownName = ".Trash-" + uidName;
    const std::string ownPath = (bin.topDirectory == "/" ? "" : bin.topDirectory) + "/" + ownName;
    if (!top || calls.fstat(top.get(), &info) != 0 || info.st_dev != device) {
        bin.problem = RemovalResult::noTrash(EXDEV, ownPath);
        return bin;
    }
    const auto ownedFolder = [&](int fd) {
        struct stat folder;
        return calls.fstat(fd, &folder) == 0 && S_ISDIR(folder.st_mode) && folder.st_uid == uid &&
               folder.st_dev == device;
    };
    // $topdir/.Trash, shared: only a real folder with the sticky bit is trusted.
    struct stat shared;
    if (calls.fstatat(top.get(), ".Trash", &shared, AT_SYMLINK_NOFOLLOW) == 0 && S_ISDIR(shared.st_mode) &&
        (shared.st_mode & S_ISVTX)) {
        FileDescriptor sharedFd(calls.openat(top.get(), ".Trash", kFolderFlags));
        FileDescriptor mine(sharedFd ? ensureFolder(sharedFd.get(), uidName.c_str()) : -1);
        if (mine && ownedFolder(mine.get()) && openBin(mine.get(), bin.files, bin.info) == 0)
            return bin;
    }
    // $topdir/.Trash-$uid, the user's own.
    FileDescriptor own(ensureFolder(top.get(), ownName.c_str()));
    if (own && ownedFolder(own.get()) && openBin(own.get(), bin.files, bin.info) == 0)
        return bin;
    const int error = errno;
    bin.files.reset();
    bin.info.reset();
    // A volume that can't take writes says so; any other reason means it has no trash we may use.
    bin.problem = (error == EROFS || error == ENOSPC || error == EDQUOT) ? RemovalResult::of(error)
                                                                         : RemovalResult::noTrash(EXDEV, ownPath);
    return bin;
}

std::shared_ptr<FileDescriptor> FreedesktopTrash::openParent(const std::string& parent) {
    if (!cachedParent || !*cachedParent || cachedParentPath != parent) {
        cachedParent = std::make_shared<FileDescriptor>(openFolderNoFollow(parent));
        cachedParentPath = parent;
    }
    return cachedParent;
}

RemovalResult FreedesktopTrash::trash(const std::string& path) {
    return trashAll({path}).front();
}

std::vector<RemovalResult> FreedesktopTrash::trashAll(const std::vector<std::string>& paths) {
    std::vector<RemovalResult> results(paths.size());
    std::vector<Pending> pending;
    pending.reserve(paths.size());
    for (std::size_t i = 0; i < paths.size(); ++i) {
        Pending item{.index = i, .path = paths[i]};
        results[i] = prepare(item);
        if (results[i].error == 0)
            pending.push_back(std::move(item));
    }
    makeDurable(pending, results);
    for (Pending& item : pending)
        results[item.index] = RemovalResult::of(place(item));
    return results;
}

// Finds the item and its trash, and writes its info file under a free name (not yet flushed).
RemovalResult FreedesktopTrash::prepare(Pending& item) {
    SystemCalls& calls = SystemCalls::current();
    const std::size_t slash = item.path.rfind('/');
    if (slash == std::string::npos || slash + 1 == item.path.size())
        return RemovalResult::of(EINVAL);
    item.name = item.path.substr(slash + 1);
    item.parent = openParent(slash == 0 ? "/" : item.path.substr(0, slash));
    if (!*item.parent)
        return RemovalResult::of(errno);
    struct stat entry, folder;
    if (retryingInterrupted([&] {
            return calls.fstatat(item.parent->get(), item.name.c_str(), &entry, AT_SYMLINK_NOFOLLOW);
        }) != 0 ||
        calls.fstat(item.parent->get(), &folder) != 0)
        return RemovalResult::of(errno);
    // A mount point would drag a whole file system along (or refuse to move): it is never trashed.
    MountRoots mounts;
    if (entry.st_dev != folder.st_dev || mounts.test(item.parent->get(), item.name.c_str()) == 1)
        return RemovalResult::mountAt(item.path);
    Bin& homeTrash = homeBin();
    if (!homeDevice) // without the home's volume known, no trash can be chosen safely
        return homeTrash.problem.error ? homeTrash.problem : RemovalResult::noTrash(EXDEV, dataHome + "/Trash");
    item.bin = entry.st_dev == *homeDevice ? &homeTrash : &volumeBin(entry.st_dev, item.path);
    if (item.bin->problem.error)
        return item.bin->problem;
    return RemovalResult::of(writeInfo(item, 0));
}

int FreedesktopTrash::writeInfo(Pending& item, int firstAttempt) {
    SystemCalls& calls = SystemCalls::current();
    const Bin& bin = *item.bin;
    const std::string recorded = bin.topDirectory.empty()  ? item.path
                                 : bin.topDirectory == "/" ? item.path.substr(1)
                                                           : item.path.substr(bin.topDirectory.size() + 1);
    const std::string text = infoText(recorded, std::chrono::system_clock::now());
    for (int attempt = firstAttempt; attempt < kAllAttempts; ++attempt) {
        item.candidate = candidateName(item.name, attempt, random);
        item.attempt = attempt;
        struct stat taken;
        if (calls.fstatat(bin.files.get(), item.candidate.c_str(), &taken, AT_SYMLINK_NOFOLLOW) == 0)
            continue;
        const std::string infoName = item.candidate + std::string(kInfoSuffix);
        item.info.reset(retryingInterrupted([&] {
            return calls.openat(bin.info.get(), infoName.c_str(),
                                O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
        }));
        if (!item.info) {
            if (errno == EEXIST)
                continue;
            return errno;
        }
        if (const int error = writeAll(item.info.get(), text)) {
            dropInfo(item);
            return error;
        }
        return 0;
    }
    return EEXIST;
}

// The info files must be on disk before any item moves: a few are flushed one by one, a large
// batch with one flush of each volume.
void FreedesktopTrash::makeDurable(std::vector<Pending>& pending, std::vector<RemovalResult>& results) {
    SystemCalls& calls = SystemCalls::current();
    std::map<const Bin*, std::vector<Pending*>> byBin;
    for (Pending& item : pending)
        byBin[item.bin].push_back(&item);
    for (auto& [bin, items] : byBin) {
        constexpr std::size_t kFlushOneByOne = 4;
        if (items.size() > kFlushOneByOne) {
            if (retryingInterrupted([&] { return calls.syncfs(items.front()->info.get()); }) != 0)
                for (Pending* item : items)
                    results[item->index] = RemovalResult::of(errno);
        } else {
            for (Pending* item : items)
                if (retryingInterrupted([&] { return calls.fsync(item->info.get()); }) != 0)
                    results[item->index] = RemovalResult::of(errno);
        }
        for (Pending* item : items) {
            if (item->info && calls.close(item->info.release()) != 0 && results[item->index].error == 0)
                results[item->index] = RemovalResult::of(errno);
            if (results[item->index].error != 0)
                dropInfo(*item);
        }
    }
    std::erase_if(pending, [&](const Pending& item) { return results[item.index].error != 0; });
}

// Moves the item under the name its info file holds; a name taken meanwhile starts over under the
// next free name.
int FreedesktopTrash::place(Pending& item) {
    SystemCalls& calls = SystemCalls::current();
    for (;;) {
        const Bin& bin = *item.bin;
        int moved = retryingInterrupted([&] {
            return calls.renameat2(item.parent->get(), item.name.c_str(), bin.files.get(),
                                   item.candidate.c_str(), RENAME_NOREPLACE);
        });
        if (moved != 0 && errno == EINVAL) {
            // A file system without no-replace renames: check the name is free, then move.
            struct stat taken;
            if (calls.fstatat(bin.files.get(), item.candidate.c_str(), &taken, AT_SYMLINK_NOFOLLOW) == 0)
                errno = EEXIST;
            else
                moved = retryingInterrupted([&] {
                    return calls.renameat2(item.parent->get(), item.name.c_str(), bin.files.get(),
                                           item.candidate.c_str(), 0);
                });
        }
        if (moved == 0)
            return 0;
        const int error = errno;
        dropInfo(item);
        if (error != EEXIST)
            return error;
        if (const int retry = writeInfo(item, item.attempt + 1))
            return retry;
        const int flushed = retryingInterrupted([&] { return calls.fsync(item.info.get()); });
        const int flushError = flushed == 0 ? 0 : errno;
        item.info.reset();
        if (flushError) {
            dropInfo(item);
            return flushError;
        }
    }
}

void FreedesktopTrash::dropInfo(Pending& item) {
    item.info.reset();
    const std::string infoName = item.candidate + std::string(kInfoSuffix);
    SystemCalls::current().unlinkat(item.bin->info.get(), infoName.c_str(), 0);
}

} // namespace CleanerCore::Platform
