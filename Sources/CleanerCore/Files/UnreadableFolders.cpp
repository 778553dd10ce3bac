#include "CleanerCore/Files/UnreadableFolders.hpp"

#include <cerrno>

namespace CleanerCore {

void UnreadableFolders::failed(int error) {
    if (error != ENOENT && error != ELOOP && error != ENOTDIR)
        add();
}

} // namespace CleanerCore
