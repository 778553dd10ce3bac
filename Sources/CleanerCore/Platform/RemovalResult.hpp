#pragma once

#include <string>

namespace CleanerCore::Platform {

// How the removal (or trashing) of one item ended, with what a reason for the user must name.
struct RemovalResult {
    enum class Cause : unsigned char {
        item,       // `error` concerns the item: 0 removed, ENOENT not there at all, else why it stays
        mountPoint, // something is mounted at `place` (the item or a folder inside it): left in place
        trash,      // the trash folder `place` could not be made or used; `error` says why
    };

    int error = 0;
    Cause cause = Cause::item;
    std::string place;

    static RemovalResult of(int error) { return {error, Cause::item, {}}; }
    static RemovalResult mountAt(std::string place);
    static RemovalResult noTrash(int error, std::string trashFolder);

    bool removed() const { return error == 0; }
    // The item was not there: nothing was done and nothing is in the way.
    bool absent() const;

    bool operator==(const RemovalResult&) const = default;
};

} // namespace CleanerCore::Platform
