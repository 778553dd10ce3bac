#include "CleanerCore/Platform/FileDescriptor.hpp"

#include "CleanerCore/Platform/SystemCalls.hpp"

namespace CleanerCore::Platform {

void FileDescriptor::reset(int replacement) {
    if (fd >= 0)
        SystemCalls::current().close(fd); // a failed close of a read-only folder loses nothing
    fd = replacement;
}

} // namespace CleanerCore::Platform
