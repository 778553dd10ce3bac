#include "CheckedOutput.hpp"

#include <cerrno>
#include <unistd.h>

namespace ZephraneCli {
namespace {

constexpr std::size_t blockSize = 256 * 1024;

} // namespace

CheckedOutput::CheckedOutput(int descriptor) : fd(descriptor) {
    buffer.reserve(blockSize);
}

CheckedOutput::~CheckedOutput() {
    drain();
}

bool CheckedOutput::writeAll(const char* data, std::size_t length) {
    if (failure != 0) {
        errno = failure;
        return false;
    }
    while (length > 0) {
        const ssize_t written = ::write(fd, data, length);
        if (written < 0) {
            if (errno == EINTR)
                continue;
            failure = errno;
            return false;
        }
        data += written;
        length -= static_cast<std::size_t>(written);
    }
    return true;
}

bool CheckedOutput::drain() {
    const bool ok = writeAll(buffer.data(), buffer.size());
    buffer.clear();
    return ok;
}

CheckedOutput::int_type CheckedOutput::overflow(int_type c) {
    if (traits_type::eq_int_type(c, traits_type::eof()))
        return drain() ? traits_type::not_eof(c) : traits_type::eof();
    buffer.push_back(traits_type::to_char_type(c));
    if (buffer.size() >= blockSize && !drain())
        return traits_type::eof();
    return c;
}

std::streamsize CheckedOutput::xsputn(const char* data, std::streamsize length) {
    const auto size = static_cast<std::size_t>(length);
    if (buffer.size() + size > blockSize) {
        if (!drain())
            return 0;
        if (size >= blockSize)
            return writeAll(data, size) ? length : 0;
    }
    buffer.append(data, size);
    return length;
}

int CheckedOutput::sync() {
    return drain() ? 0 : -1;
}

bool CheckedOutput::close() {
    const bool drained = drain();
    const int error = errno;
    const bool closed = fd < 0 || ::close(fd) == 0;
    const int closeError = errno;
    fd = -1;
    if (!drained)
        errno = error;
    else if (!closed)
        errno = closeError;
    return drained && closed;
}

} // namespace ZephraneCli
