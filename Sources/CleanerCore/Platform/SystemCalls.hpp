#pragma once

#include <cstddef>
#include <sys/stat.h>
#include <sys/types.h>

struct statx;

namespace CleanerCore::Platform {

// The one seam between the engine and the kernel. Every call behaves like its libc namesake:
// -1 (or a negative count) with errno set on failure. Tests install a subclass that fails chosen
// calls (EACCES, ENOENT, EINTR, ENOSPC...) so that every failure path runs without root tricks.
class SystemCalls {
public:
    virtual ~SystemCalls() = default;

    virtual int openat(int dirfd, const char* path, int flags, mode_t mode = 0);
    virtual int close(int fd);
    virtual long getdents64(int fd, void* buffer, std::size_t length);
    virtual int statx(int dirfd, const char* path, int flags, unsigned mask, struct ::statx* out);
    virtual int fstatat(int dirfd, const char* path, struct ::stat* out, int flags);
    virtual int unlinkat(int dirfd, const char* path, int flags);
    virtual int renameat2(int olddirfd, const char* oldpath, int newdirfd, const char* newpath,
                          unsigned flags);
    virtual int mkdirat(int dirfd, const char* path, mode_t mode);
    virtual ssize_t write(int fd, const void* data, std::size_t length);
    virtual int fsync(int fd);
    virtual int syncfs(int fd);
    virtual int fstat(int fd, struct ::stat* out);
    virtual int fchmod(int fd, mode_t mode);
    virtual char* realpath(const char* path, char* resolved);
    virtual ssize_t read(int fd, void* buffer, std::size_t length);
    virtual ssize_t readlinkat(int dirfd, const char* path, char* buffer, std::size_t size);
    virtual int kill(pid_t pid, int signal);

    // The calls in force: the real ones unless a test has installed others.
    static SystemCalls& current();

protected:
    friend class ScopedSystemCalls;
    static SystemCalls* installed;
};

// Installs `replacement` for the lifetime of this object (tests only; not thread-safe to swap
// while engine work runs).
class ScopedSystemCalls {
public:
    explicit ScopedSystemCalls(SystemCalls& replacement);
    ~ScopedSystemCalls();
    ScopedSystemCalls(const ScopedSystemCalls&) = delete;
    ScopedSystemCalls& operator=(const ScopedSystemCalls&) = delete;

private:
    SystemCalls* previous;
};

} // namespace CleanerCore::Platform
