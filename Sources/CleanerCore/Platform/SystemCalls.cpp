#include "CleanerCore/Platform/SystemCalls.hpp"

#include <fcntl.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace CleanerCore::Platform {

SystemCalls* SystemCalls::installed = nullptr;

int SystemCalls::openat(int dirfd, const char* path, int flags, mode_t mode) {
    return ::openat(dirfd, path, flags, mode);
}
int SystemCalls::close(int fd) {
    return ::close(fd);
}
long SystemCalls::getdents64(int fd, void* buffer, std::size_t length) {
    return ::syscall(SYS_getdents64, fd, buffer, length);
}
int SystemCalls::statx(int dirfd, const char* path, int flags, unsigned mask, struct ::statx* out) {
    return ::statx(dirfd, path, flags, mask, out);
}
int SystemCalls::fstatat(int dirfd, const char* path, struct ::stat* out, int flags) {
    return ::fstatat(dirfd, path, out, flags);
}
int SystemCalls::unlinkat(int dirfd, const char* path, int flags) {
    return ::unlinkat(dirfd, path, flags);
}
int SystemCalls::renameat2(int olddirfd, const char* oldpath, int newdirfd, const char* newpath,
                           unsigned flags) {
    return ::renameat2(olddirfd, oldpath, newdirfd, newpath, flags);
}
int SystemCalls::mkdirat(int dirfd, const char* path, mode_t mode) {
    return ::mkdirat(dirfd, path, mode);
}
ssize_t SystemCalls::write(int fd, const void* data, std::size_t length) {
    return ::write(fd, data, length);
}
int SystemCalls::fsync(int fd) {
    return ::fsync(fd);
}
int SystemCalls::syncfs(int fd) {
    return ::syncfs(fd);
}
int SystemCalls::fstat(int fd, struct ::stat* out) {
    return ::fstat(fd, out);
}
int SystemCalls::fchmod(int fd, mode_t mode) {
    return ::fchmod(fd, mode);
}
char* SystemCalls::realpath(const char* path, char* resolved) {
    return ::realpath(path, resolved);
}
ssize_t SystemCalls::read(int fd, void* buffer, std::size_t length) {
    return ::read(fd, buffer, length);
}
ssize_t SystemCalls::readlinkat(int dirfd, const char* path, char* buffer, std::size_t size) {
    return ::readlinkat(dirfd, path, buffer, size);
}
int SystemCalls::kill(pid_t pid, int signal) {
    return ::kill(pid, signal);
}

SystemCalls& SystemCalls::current() {
    static SystemCalls real;
    return installed ? *installed : real;
}

ScopedSystemCalls::ScopedSystemCalls(SystemCalls& replacement) : previous(SystemCalls::installed) {
    SystemCalls::installed = &replacement;
}
ScopedSystemCalls::~ScopedSystemCalls() {
    SystemCalls::installed = previous;
}

} // namespace CleanerCore::Platform
