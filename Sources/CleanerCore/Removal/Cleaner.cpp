#include "CleanerCore/Removal/Cleaner.hpp"

#include "CleanerCore/Display/CoreL10n.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "CleanerCore/Platform/FreedesktopTrash.hpp"
#include "CleanerCore/Platform/NoFollow.hpp"
#include "CleanerCore/Platform/TreeRemoval.hpp"
#include "CleanerCore/Removal/SafetyGuard.hpp"

#include <cerrno>
#include <cstring>
#include <memory>

namespace CleanerCore {
namespace {

// The user's words for what kept an item in place.
std::string reasonFor(int error) {
    switch (error) {
    case EACCES:
    case EPERM:
        return CoreL10n::string("core.removal.failure.noPermission");
    case EBUSY:
    case ETXTBSY:
        return CoreL10n::string("core.removal.failure.busy");
    case EROFS:
        return CoreL10n::string("core.removal.failure.readOnly");
    case ENOSPC:
    case EDQUOT:
        return CoreL10n::string("core.removal.failure.noSpace");
    case EXDEV:
        return CoreL10n::string("core.removal.failure.noTrash");
    case ELOOP:
    case ENOTDIR:
        return CoreL10n::string("core.removal.failure.changed");
    default:
        return CoreL10n::format("core.removal.failure.other", std::nullopt,
                                {std::string(std::strerror(error))});
    }
}

// Removal for good, from the parent folder that the guard resolved.
int removePermanently(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    const std::string parent = slash == 0 ? "/" : path.substr(0, slash);
    Platform::FileDescriptor folder(Platform::openFolderNoFollow(parent));
    if (!folder)
        return errno;
    return Platform::removeTree(folder.get(), path.c_str() + slash + 1);
}

} // namespace

RemovalReport Cleaner::remove(std::span<const CleanupItem> items) const {
    RemovalReport report{.mode = mode_};
    std::unique_ptr<Platform::FreedesktopTrash> trash;
    for (const CleanupItem& item : items) {
        URL target;
        try {
            target = SafetyGuard::check(item.url, home_, ownBundle_);
        } catch (const SafetyGuard::Refusal& refusal) {
            report.failures.push_back({item.url, refusal.localizedDescription()});
            continue;
        }
        int error = 0;
        if (mode_ == RemovalMode::trash) {
            if (!trash)
                trash = std::make_unique<Platform::FreedesktopTrash>(
                    Platform::FreedesktopTrash::dataHomeFor(home_.path()));
            error = trash->trash(target.path());
        } else {
            error = removePermanently(target.path());
        }
        if (error == 0 || error == ENOENT) {
            // Already gone counts as removed, without bytes: someone else freed them.
            report.removed.push_back(item.url);
            if (error == 0)
                report.bytes += item.size;
        } else {
            report.failures.push_back({item.url, reasonFor(error)});
        }
    }
    return report;
}

} // namespace CleanerCore
