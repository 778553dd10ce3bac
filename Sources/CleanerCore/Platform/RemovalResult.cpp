#include "CleanerCore/Platform/RemovalResult.hpp"

#include <cerrno>

namespace CleanerCore::Platform {

RemovalResult RemovalResult::mountAt(std::string where) {
    return {EBUSY, Cause::mountPoint, std::move(where)};
}

RemovalResult RemovalResult::noTrash(int why, std::string trashFolder) {
    return {why, Cause::trash, std::move(trashFolder)};
}

bool RemovalResult::absent() const {
    return error == ENOENT && cause == Cause::item;
}

} // namespace CleanerCore::Platform
