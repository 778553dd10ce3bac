#include "CleanerCore/Platform/FreedesktopTrash.hpp"

#include "CleanerCore/Files/URL.hpp"
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
    return retryingInterrupted([&] { return calls.fsync(fd); }) == 0 ? 0 : errno;
}

} // namespace

FreedesktopTrash::FreedesktopTrash(std::string dataHomePath, std::vector<MountPoint> mountList)
    : dataHome(std::move(dataHomePath)), mounts(std::move(mountList)) {}

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
    // The data home may be missing on a fresh account: make it, then never go through a link below it.
    std::string made;
    for (std::size_t slash = dataHome.find('/', 1);; slash = dataHome.find('/', slash + 1)) {
        made = dataHome.substr(0, slash);
        if (retryingInterrupted([&] { return calls.mkdirat(AT_FDCWD, made.c_str(), 0700); }) != 0 &&
            errno != EEXIST) {
            home->error = errno;
            return *home;
        }
        if (slash == std::string::npos)
            break;
    }
    char real[PATH_MAX];
    FileDescriptor base(calls.realpath(dataHome.c_str(), real) ? openFolderNoFollow(real) : -1);
    struct stat info;
    if (!base || calls.fstat(base.get(), &info) != 0) {
        home->error = errno;
        return *home;
    }
    // Items on this volume go to the home trash or nowhere, even when it can't be made.
    homeDevice = info.st_dev;
    FileDescriptor trash(ensureFolder(base.get(), "Trash"));
    home->error = trash ? openBin(trash.get(), home->files, home->info) : errno;
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
    if (!top || calls.fstat(top.get(), &info) != 0 || info.st_dev != device) {
        bin.error = EXDEV;
        return bin;
    }
    const uid_t uid = ::getuid();
    const std::string uidName = std::to_string(uid);
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
    const std::string ownName = ".Trash-" + uidName;
    FileDescriptor own(ensureFolder(top.get(), ownName.c_str()));
    if (own && ownedFolder(own.get()) && openBin(own.get(), bin.files, bin.info) == 0)
        return bin;
    const int error = errno;
    bin.files.reset();
    bin.info.reset();
    // A volume that can't take writes says so; any other reason means it has no trash we may use.
    bin.error = (error == EROFS || error == ENOSPC || error == EDQUOT) ? error : EXDEV;
    return bin;
}

int FreedesktopTrash::openParent(const std::string& parent) {
    if (!cachedParent || cachedParentPath != parent) {
        cachedParent.reset(openFolderNoFollow(parent));
        cachedParentPath = cachedParent ? parent : std::string{};
    }
    return cachedParent.get();
}

int FreedesktopTrash::trash(const std::string& path) {
    SystemCalls& calls = SystemCalls::current();
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos || slash + 1 == path.size())
        return EINVAL;
    const std::string parent = slash == 0 ? "/" : path.substr(0, slash);
    const std::string name = path.substr(slash + 1);
    const int parentFd = openParent(parent);
    if (parentFd < 0)
        return errno;
    struct stat item, folder;
    if (retryingInterrupted(
            [&] { return calls.fstatat(parentFd, name.c_str(), &item, AT_SYMLINK_NOFOLLOW); }) != 0 ||
        calls.fstat(parentFd, &folder) != 0)
        return errno;
    if (S_ISDIR(item.st_mode) && item.st_dev != folder.st_dev)
        return EBUSY;
    Bin& homeTrash = homeBin();
    if (!homeDevice)
        return homeTrash.error; // without the home's volume known, no trash can be chosen safely
    Bin& bin = item.st_dev == *homeDevice ? homeTrash : volumeBin(item.st_dev, path);
    if (bin.error)
        return bin.error;
    return move(bin, parentFd, path, name);
}

int FreedesktopTrash::move(Bin& bin, int parentFd, const std::string& path, const std::string& name) {
    SystemCalls& calls = SystemCalls::current();
    const std::string recorded = bin.topDirectory.empty()  ? path
                                 : bin.topDirectory == "/" ? path.substr(1)
                                                           : path.substr(bin.topDirectory.size() + 1);
    const std::string text = infoText(recorded, std::chrono::system_clock::now());
    std::mt19937 random(std::random_device{}());
    for (int attempt = 0; attempt < kAllAttempts; ++attempt) {
        const std::string candidate = candidateName(name, attempt, random);
        const std::string infoName = candidate + std::string(kInfoSuffix);
        const int fd = retryingInterrupted([&] {
            return calls.openat(bin.info.get(), infoName.c_str(),
                                O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
        });
        if (fd < 0) {
            if (errno == EEXIST)
                continue;
            return errno;
        }
        int error = writeAll(fd, text);
        if (calls.close(fd) != 0 && !error)
            error = errno;
        const auto dropInfo = [&] { calls.unlinkat(bin.info.get(), infoName.c_str(), 0); };
        if (error) {
            dropInfo();
            return error;
        }
        int moved = retryingInterrupted([&] {
            return calls.renameat2(parentFd, name.c_str(), bin.files.get(), candidate.c_str(),
                                   RENAME_NOREPLACE);
        });
        if (moved != 0 && errno == EINVAL) {
            // A file system without no-replace renames: check the name is free, then move.
            struct stat taken;
            if (calls.fstatat(bin.files.get(), candidate.c_str(), &taken, AT_SYMLINK_NOFOLLOW) == 0) {
                dropInfo();
                continue;
            }
            moved = retryingInterrupted([&] {
                return calls.renameat2(parentFd, name.c_str(), bin.files.get(), candidate.c_str(), 0);
            });
        }
        if (moved == 0)
            return 0;
        error = errno;
        dropInfo();
        if (error != EEXIST)
            return error;
    }
    return EEXIST;
}

} // namespace CleanerCore::Platform
