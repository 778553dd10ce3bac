#include "CleanerCore/Removal/Cleaner.hpp"

#include "CleanerCore/Display/CoreL10n.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "CleanerCore/Platform/FreedesktopTrash.hpp"
#include "CleanerCore/Platform/NoFollow.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"
#include "CleanerCore/Platform/TreeRemoval.hpp"
#include "CleanerCore/Removal/SafetyGuard.hpp"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <optional>
#include <string_view>
#include <sys/stat.h>
#include <unordered_map>
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

std::string reasonFor(const Platform::RemovalResult& result) {
    using Cause = Platform::RemovalResult::Cause;
    switch (result.cause) {
    case Cause::mountPoint:
        return CoreL10n::format("core.removal.failure.mountPoint", std::nullopt, {result.place});
    case Cause::trash:
        return CoreL10n::format("core.removal.failure.trashUnavailable", std::nullopt, {result.place});
    case Cause::item:
        break;
    }
    return reasonFor(result.error);
}

// Removal for good, from the parent folder that the guard resolved.
Platform::RemovalResult removePermanently(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    const std::string parent = slash == 0 ? "/" : path.substr(0, slash);
    Platform::FileDescriptor folder(Platform::openFolderNoFollow(parent));
    if (!folder)
        return Platform::RemovalResult::of(errno);
    return Platform::removeTree(folder.get(), path.c_str() + slash + 1, path);
}

// Whether nothing at all stands at `path` now: only then does an item count as already gone.
bool nothingAt(const std::string& path) {
    struct stat info;
    return Platform::SystemCalls::current().fstatat(AT_FDCWD, path.c_str(), &info, AT_SYMLINK_NOFOLLOW) != 0 &&
           (errno == ENOENT || errno == ENOTDIR);
}

// The folders above `path` (standardized), nearest last: "/a/b/c" gives "/a", "/a/b".
std::vector<std::string_view> ancestors(std::string_view path) {
    std::vector<std::string_view> out;
    for (std::size_t slash = path.find('/', 1); slash != std::string_view::npos; slash = path.find('/', slash + 1))
        out.push_back(path.substr(0, slash));
    return out;
}

} // namespace

RemovalReport Cleaner::remove(std::span<const CleanupItem> items) const {
    enum class State { waiting, removed, gone, failed };
    std::vector<State> states(items.size(), State::waiting);
    std::vector<std::string> reasons(items.size());
    std::vector<std::string> targets(items.size());
    for (std::size_t i = 0; i < items.size(); ++i) {
        try {
            targets[i] = SafetyGuard::check(items[i].url, home_, ownBundle_).path();
        } catch (const SafetyGuard::Refusal& refusal) {
            states[i] = State::failed;
            reasons[i] = refusal.localizedDescription();
        }
    }

    std::unique_ptr<Platform::FreedesktopTrash> trash;
    const auto settle = [&](std::size_t i, const Platform::RemovalResult& result) {
        if (result.removed()) {
            states[i] = State::removed;
        } else if (result.absent() && nothingAt(targets[i])) {
            states[i] = State::gone; // someone else freed it
        } else {
            states[i] = State::failed;
            reasons[i] = reasonFor(result);
        }
    };
    // Trashing goes in batches, so that one flush makes the info files of many items durable.
    const auto act = [&](const std::vector<std::size_t>& round) {
        constexpr std::size_t kTrashBatch = 256;
        for (std::size_t start = 0; start < round.size(); start += kTrashBatch) {
            const std::span<const std::size_t> batch =
                std::span(round).subspan(start, std::min(kTrashBatch, round.size() - start));
            if (mode_ == RemovalMode::permanent) {
                for (std::size_t i : batch)
                    settle(i, removePermanently(targets[i]));
                continue;
            }
            if (!trash)
                trash = std::make_unique<Platform::FreedesktopTrash>(
                    Platform::FreedesktopTrash::dataHomeFor(home_.path()));
            std::vector<std::string> paths;
            for (std::size_t i : batch)
                paths.push_back(targets[i]);
            const std::vector<Platform::RemovalResult> results = trash->trashAll(paths);
            for (std::size_t k = 0; k < batch.size(); ++k)
                settle(batch[k], results[k]);
        }
    };

    // An item inside another selected one (or named twice) goes with it: it is never moved out of a
    // folder already in the trash, and its bytes count once, in the outer item's size. Only when
    // the outer item stays is the inner one taken on its own, in a later round.
    std::vector<std::size_t> pending;
    for (std::size_t i = 0; i < items.size(); ++i)
        if (states[i] == State::waiting)
            pending.push_back(i);
    while (!pending.empty()) {
        std::unordered_map<std::string_view, std::size_t> first;
        for (std::size_t i : pending)
            first.try_emplace(targets[i], i);
        std::vector<std::size_t> outer, inner, outerOf(items.size());
        for (std::size_t i : pending) {
            std::optional<std::size_t> container;
            for (std::string_view above : ancestors(targets[i]))
                if (const auto found = first.find(above); found != first.end()) {
                    container = found->second;
                    break;
                }
            if (!container && first.at(targets[i]) != i)
                container = first.at(targets[i]);
            if (container) {
                outerOf[i] = *container;
                inner.push_back(i);
            } else {
                outer.push_back(i);
            }
        }
        act(outer);
        pending.clear();
        for (std::size_t i : inner) {
            if (states[outerOf[i]] == State::failed)
                pending.push_back(i);
            else
                states[i] = State::gone;
        }
    }

    RemovalReport report{.mode = mode_};
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (states[i] == State::failed) {
            report.failures.push_back({items[i].url, reasons[i]});
            continue;
        }
        report.removed.push_back(items[i].url);
        if (states[i] == State::removed)
            report.bytes += items[i].size;
    }
    return report;
}

} // namespace CleanerCore
