#pragma once

#include "CleanerCore/Platform/SystemCalls.hpp"

#include <atomic>
#include <cerrno>
#include <filesystem>
#include <functional>
#include <sys/stat.h>

namespace TestSupport {

// Real system calls, except where a test's rule answers with an errno: then the call fails with
// it. Rules must be safe to call from several threads; counters are atomic.
class FaultySystemCalls : public CleanerCore::Platform::SystemCalls {
public:
    using NameRule = std::function<int(const char* name)>;

    NameRule openFault;                                       // openat(name)
    NameRule statxFault;                                      // statx(name)
    std::function<void(struct ::statx* out)> afterStatx;      // may rewrite what the kernel said
    std::function<int()> listFault;                           // getdents64
    std::function<void(void* buffer, long filled)> afterList; // may rewrite what the kernel returned

    NameRule unlinkFault;                             // unlinkat(name)
    NameRule renameFault;                             // renameat2(old name)
    NameRule mkdirFault;                              // mkdirat(name)
    std::function<int()> writeFault;                  // write
    std::function<void(const char* name)> beforeOpen; // runs before openat: races
    std::function<void(const char* from, const char* to)> beforeRename;

    std::atomic<int> opens{0}, stats{0}, lists{0}, closes{0}, lstats{0};
    std::atomic<int> openNow{0}, openPeak{0}; // descriptors opened here and not yet closed

    int openat(int dirfd, const char* path, int flags, mode_t mode) override {
        ++opens;
        if (beforeOpen)
            beforeOpen(path);
        if (const int error = openFault ? openFault(path) : 0)
            return fail(error);
        const int fd = SystemCalls::openat(dirfd, path, flags, mode);
        if (fd >= 0) {
            const int now = ++openNow;
            for (int peak = openPeak; now > peak && !openPeak.compare_exchange_weak(peak, now);) {
            }
        }
        return fd;
    }
    int close(int fd) override {
        ++closes;
        --openNow;
        return SystemCalls::close(fd);
    }
    int fstatat(int dirfd, const char* path, struct ::stat* out, int flags) override {
        ++lstats;
        return SystemCalls::fstatat(dirfd, path, out, flags);
    }
    long getdents64(int fd, void* buffer, std::size_t length) override {
        ++lists;
        if (const int error = listFault ? listFault() : 0)
            return fail(error);
        const long filled = SystemCalls::getdents64(fd, buffer, length);
        if (filled > 0 && afterList)
            afterList(buffer, filled);
        return filled;
    }
    int statx(int dirfd, const char* path, int flags, unsigned mask, struct ::statx* out) override {
        ++stats;
        if (const int error = statxFault ? statxFault(path) : 0)
            return fail(error);
        const int result = SystemCalls::statx(dirfd, path, flags, mask, out);
        if (result == 0 && afterStatx)
            afterStatx(out);
        return result;
    }

    int unlinkat(int dirfd, const char* path, int flags) override {
        if (const int error = unlinkFault ? unlinkFault(path) : 0)
            return fail(error);
        return SystemCalls::unlinkat(dirfd, path, flags);
    }
    int renameat2(int olddirfd, const char* oldpath, int newdirfd, const char* newpath,
                  unsigned flags) override {
        if (beforeRename)
            beforeRename(oldpath, newpath);
        if (const int error = renameFault ? renameFault(oldpath) : 0)
            return fail(error);
        return SystemCalls::renameat2(olddirfd, oldpath, newdirfd, newpath, flags);
    }
    int mkdirat(int dirfd, const char* path, mode_t mode) override {
        if (const int error = mkdirFault ? mkdirFault(path) : 0)
            return fail(error);
        return SystemCalls::mkdirat(dirfd, path, mode);
    }
    ssize_t write(int fd, const void* data, std::size_t length) override {
        if (const int error = writeFault ? writeFault() : 0)
            return fail(error);
        return SystemCalls::write(fd, data, length);
    }

private:
    static int fail(int error) {
        errno = error;
        return -1;
    }
};

// What `path` itself occupies on disk (its allocated blocks, links not followed); -1 if absent.
inline std::int64_t allocatedBytes(const std::filesystem::path& path) {
    struct stat info {};
    return ::lstat(path.c_str(), &info) == 0 ? static_cast<std::int64_t>(info.st_blocks) * 512 : -1;
}

} // namespace TestSupport
