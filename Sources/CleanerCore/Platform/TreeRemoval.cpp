#include "CleanerCore/Platform/TreeRemoval.hpp"

#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "CleanerCore/Platform/MountRoots.hpp"
#include "CleanerCore/Platform/NoFollow.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"

#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>
#include <vector>

namespace CleanerCore::Platform {
namespace {

// Folders deeper than this in the stack give their descriptors back and are found again through
// "..", checked by device and inode, on the way up.
constexpr std::size_t kOpenFolderBudget = 64;

struct Folder {
    FileDescriptor fd;
    dev_t device{};
    ino_t inode{};
    std::string name;                      // its name in the folder above
    std::vector<std::string> childFolders; // still to enter
};

dev_t deviceOf(const struct ::statx& info) {
    return makedev(info.stx_dev_major, info.stx_dev_minor);
}

class Removal {
public:
    Removal(int parentFd, dev_t device, std::string_view rootPath, MountRoots& roots)
        : parent(parentFd), rootDevice(device), path(rootPath), mounts(roots) {}

    RemovalResult run(FileDescriptor rootFd, const char* name) {
        if (!push(std::move(rootFd), name))
            return result.error ? result : RemovalResult::of(ELOOP);
        while (!stack.empty()) {
            Folder& top = stack.back();
            if (!top.childFolders.empty()) {
                std::string child = std::move(top.childFolders.back());
                top.childFolders.pop_back();
                enter(top.fd.get(), child);
                continue;
            }
            if (!leave())
                return RemovalResult::of(ELOOP);
        }
        return result;
    }

private:
    void note(int error) {
        if (!result.error)
            result = RemovalResult::of(error);
    }

    // What is mounted there is not ours: it stays, and so do the folders above it.
    void noteMount(std::string place) {
        if (!result.error)
            result = RemovalResult::mountAt(std::move(place));
    }

    // The full path of `name` inside the folder on top of the stack (the item itself when empty).
    std::string pathOf(const std::string& name) const {
        std::string out(path);
        for (std::size_t i = 1; i < stack.size(); ++i)
            out += "/" + stack[i].name;
        if (!stack.empty())
            out += "/" + name;
        return out;
    }

    // Checked on the open descriptor, so a mount that appears after the listing is still seen.
    bool push(FileDescriptor fd, std::string name) {
        struct ::statx info;
        const int mounted = mounts.test(fd.get(), "", &info);
        if (mounted < 0) {
            note(errno);
            return false;
        }
        if (mounted || deviceOf(info) != rootDevice) {
            noteMount(pathOf(name));
            return false;
        }
        stack.push_back(Folder{std::move(fd), deviceOf(info), static_cast<ino_t>(info.stx_ino), std::move(name), {}});
        if (stack.size() - firstOpen > kOpenFolderBudget)
            stack[firstOpen++].fd.reset();
        list(stack.back());
        return true;
    }

    // Files go at once; folders wait for their turn on the stack.
    void list(Folder& folder) {
        const int fd = folder.fd.get();
        const bool complete = listDirectory(
            fd,
            [&](const ListedEntry& entry) {
                if (entry.kind == EntryKind::directory) {
                    folder.childFolders.emplace_back(entry.name);
                    return;
                }
                if (retryingInterrupted([&] { return calls.unlinkat(fd, entry.name.data(), 0); }) == 0)
                    return;
                if (errno == EISDIR) { // changed type since listed
                    folder.childFolders.emplace_back(entry.name);
                } else if (errno == EBUSY && mounts.test(fd, entry.name.data()) == 1) {
                    noteMount(pathOf(std::string(entry.name))); // a file bind-mounted here
                } else if (errno != ENOENT) {
                    note(errno);
                }
            },
            ListingOptions{.statFolders = false, .statFiles = false});
        if (!complete)
            note(errno);
    }

    void enter(int parentFd, const std::string& name) {
        const int fd = openDirectory(parentFd, name.c_str());
        if (fd >= 0) {
            push(FileDescriptor(fd), name); // if not entered, the noted error explains what stays
            return;
        }
        if (errno == ENOENT)
            return;
        if (errno == ELOOP || errno == ENOTDIR) {
            // It became a link or a file since it was listed: that entry alone goes.
            if (retryingInterrupted([&] { return calls.unlinkat(parentFd, name.c_str(), 0); }) != 0 &&
                errno != ENOENT)
                note(errno);
            return;
        }
        note(errno);
    }

    // The top folder is empty (or kept what it could not lose): close it and remove it from above.
    bool leave() {
        Folder done = std::move(stack.back());
        stack.pop_back();
        int above = parent;
        if (!stack.empty()) {
            Folder& up = stack.back();
            if (!up.fd && !reopen(done, up))
                return false;
            above = up.fd.get();
        }
        done.fd.reset();
        if (retryingInterrupted([&] { return calls.unlinkat(above, done.name.c_str(), AT_REMOVEDIR); }) !=
                0 &&
            errno != ENOENT && !(errno == ENOTEMPTY && result.error))
            note(errno);
        return true;
    }

    // Finds the folder above `child` through "..", and goes on only if it is the very folder that
    // was left there.
    bool reopen(const Folder& child, Folder& up) {
        FileDescriptor fd(openDirectory(child.fd.get(), ".."));
        struct stat info;
        if (!fd || calls.fstat(fd.get(), &info) != 0 || info.st_dev != up.device || info.st_ino != up.inode) {
            note(ELOOP);
            return false;
        }
        up.fd = std::move(fd);
        firstOpen = stack.size() - 1;
        return true;
    }

    SystemCalls& calls = SystemCalls::current();
    int parent;
    dev_t rootDevice;
    std::string_view path;
    MountRoots& mounts;
    std::vector<Folder> stack;
    std::size_t firstOpen = 0; // folders below this index have closed their descriptors
    RemovalResult result;
};

RemovalResult unlinkEntry(int parentFd, const char* name) {
    SystemCalls& calls = SystemCalls::current();
    return RemovalResult::of(
        retryingInterrupted([&] { return calls.unlinkat(parentFd, name, 0); }) == 0 ? 0 : errno);
}

} // namespace

RemovalResult removeTree(int parentFd, const char* name, std::string_view path) {
    SystemCalls& calls = SystemCalls::current();
    MountRoots mounts;
    struct ::statx info, parentInfo;
    const int mounted = mounts.test(parentFd, name, &info);
    if (mounted < 0)
        return RemovalResult::of(errno);
    if (retryingInterrupted([&] { return calls.statx(parentFd, "", AT_EMPTY_PATH, STATX_TYPE, &parentInfo); }) !=
        0)
        return RemovalResult::of(errno);
    // Something mounted on the item itself, a file bind mount included, is never a removal target.
    if (mounted || deviceOf(info) != deviceOf(parentInfo))
        return RemovalResult::mountAt(std::string(path));
    if (!S_ISDIR(info.stx_mode))
        return unlinkEntry(parentFd, name);
    const int fd = openDirectory(parentFd, name);
    if (fd < 0) {
        if (errno != ELOOP && errno != ENOTDIR)
            return RemovalResult::of(errno);
        // Swapped for a link or a file since it was looked at: remove that entry itself.
        return unlinkEntry(parentFd, name);
    }
    return Removal(parentFd, deviceOf(info), path, mounts).run(FileDescriptor(fd), name);
}

} // namespace CleanerCore::Platform
