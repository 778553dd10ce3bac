#pragma once

#include <utility>

namespace CleanerCore::Platform {

// Owns one descriptor and closes it through the system-call seam. Move-only; -1 means none.
class FileDescriptor {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor) : fd(descriptor) {}
    ~FileDescriptor() { reset(); }
    FileDescriptor(FileDescriptor&& other) noexcept : fd(std::exchange(other.fd, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        if (this != &other) {
            reset();
            fd = std::exchange(other.fd, -1);
        }
        return *this;
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;

    int get() const { return fd; }
    explicit operator bool() const { return fd >= 0; }
    int release() { return std::exchange(fd, -1); }
    void reset(int replacement = -1);

private:
    int fd = -1;
};

} // namespace CleanerCore::Platform
