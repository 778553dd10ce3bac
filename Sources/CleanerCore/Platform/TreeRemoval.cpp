#include "CleanerCore/Platform/TreeRemoval.hpp"

#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "CleanerCore/Platform/NoFollow.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"

#include <fcntl.h>
#include <string>
#include <sys/stat.h>
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

class Removal {
public:
    Removal(int parentFd, dev_t device) : parent(parentFd), rootDevice(device) {}

    int run(FileDescriptor rootFd, const char* name) {
        if (!push(std::move(rootFd), name))
            return firstError ? firstError : ELOOP;
        while (!stack.empty()) {
            Folder& top = stack.back();
            if (!top.childFolders.empty()) {
                std::string child = std::move(top.childFolders.back());
                top.childFolders.pop_back();
                enter(top.fd.get(), child);
                continue;
            }
            if (!leave())
                return ELOOP;
        }
        return firstError;
    }

private:
    void note(int error) {
        if (!firstError)
            firstError = error;
    }

    bool push(FileDescriptor fd, std::string name) {
        struct stat info;
        if (calls.fstat(fd.get(), &info) != 0) {
            note(errno);
            return false;
        }
        if (info.st_dev != rootDevice) {
            note(EXDEV); // a mount point inside the tree: what is mounted there is not ours
            return false;
        }
        stack.push_back(Folder{std::move(fd), info.st_dev, info.st_ino, std::move(name), {}});
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
                if (errno == EISDIR) // changed type since listed
                    folder.childFolders.emplace_back(entry.name);
                else if (errno != ENOENT)
                    note(errno);
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
            errno != ENOENT && !(errno == ENOTEMPTY && firstError))
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
    std::vector<Folder> stack;
    std::size_t firstOpen = 0; // folders below this index have closed their descriptors
    int firstError = 0;
};

} // namespace

int removeTree(int parentFd, const char* name) {
    SystemCalls& calls = SystemCalls::current();
    struct stat info;
    if (retryingInterrupted([&] { return calls.fstatat(parentFd, name, &info, AT_SYMLINK_NOFOLLOW); }) != 0)
        return errno;
    if (!S_ISDIR(info.st_mode))
        return retryingInterrupted([&] { return calls.unlinkat(parentFd, name, 0); }) == 0 ? 0 : errno;
    struct stat parentInfo;
    if (calls.fstat(parentFd, &parentInfo) != 0)
        return errno;
    if (parentInfo.st_dev != info.st_dev)
        return EBUSY; // a mount point: what is mounted there is not removed through it
    const int fd = openDirectory(parentFd, name);
    if (fd < 0) {
        if (errno != ELOOP && errno != ENOTDIR)
            return errno;
        // Swapped for a link or a file since it was looked at: remove that entry itself.
        return retryingInterrupted([&] { return calls.unlinkat(parentFd, name, 0); }) == 0 ? 0 : errno;
    }
    return Removal(parentFd, info.st_dev).run(FileDescriptor(fd), name);
}

} // namespace CleanerCore::Platform
