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
#include <optional>
#include <vector>

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
    // The outcome of each item: a refusal's reason, or the errno of its removal (0: removed).
    std::vector<std::optional<std::string>> refusals(items.size());
    std::vector<int> errors(items.size(), 0);
    std::unique_ptr<Platform::FreedesktopTrash> trash;
    std::vector<std::size_t> batch;
    std::vector<std::string> targets;
    // Trashing goes in batches, so that one flush makes the info files of many items durable.
    const auto trashBatch = [&] {
        if (!trash)
            trash = std::make_unique<Platform::FreedesktopTrash>(
                Platform::FreedesktopTrash::dataHomeFor(home_.path()));
        const std::vector<int> results = trash->trashAll(targets);
        for (std::size_t k = 0; k < batch.size(); ++k)
            errors[batch[k]] = results[k];
        batch.clear();
        targets.clear();
    };
    constexpr std::size_t kTrashBatch = 256;
    for (std::size_t i = 0; i < items.size(); ++i) {
        URL target;
        try {
            target = SafetyGuard::check(items[i].url, home_, ownBundle_);
        } catch (const SafetyGuard::Refusal& refusal) {
            refusals[i] = refusal.localizedDescription();
            continue;
        }
        if (mode_ == RemovalMode::permanent) {
            errors[i] = removePermanently(target.path());
            continue;
        }
        batch.push_back(i);
        targets.push_back(target.path());
        if (batch.size() == kTrashBatch)
            trashBatch();
    }
    if (!batch.empty())
        trashBatch();

    RemovalReport report{.mode = mode_};
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (refusals[i]) {
            report.failures.push_back({items[i].url, *refusals[i]});
        } else if (errors[i] == 0 || errors[i] == ENOENT) {
            // Already gone counts as removed, without bytes: someone else freed them.
            report.removed.push_back(items[i].url);
            if (errors[i] == 0)
                report.bytes += items[i].size;
        } else {
            report.failures.push_back({items[i].url, reasonFor(errors[i])});
        }
    }
    return report;
}

} // namespace CleanerCore
