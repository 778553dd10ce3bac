#pragma once

#include "CleanerCore/Files/URL.hpp"

#include <exception>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// The last line of defence before anything is removed: a pure test on path text, made once on the
// path as the caller wrote it and once with its parent folder's links resolved. No scanner, rule
// table or selection is trusted.
namespace CleanerCore::SafetyGuard {

// A protected (or meaningless) path. `path` is the standardized path, trailing slashes removed,
// in its original case.
struct Refusal : std::exception {
    explicit Refusal(std::string refusedPath);
    std::string path;

    // "core.safety.protectedPath" with the path, in the engine's language or `locale`.
    std::string localizedDescription(const std::optional<std::string>& locale = std::nullopt) const;
    const char* what() const noexcept override { return message.c_str(); }

private:
    std::string message;
};

// The path that removal must act on: the parent resolved, the last component untouched.
// Throws Refusal when the path is protected.
URL check(const URL& url, const URL& home, const std::optional<URL>& ownBundle);

// True exactly when check() throws. It never stands in for check() before a removal.
bool isProtected(const URL& url, const URL& home, const std::optional<URL>& ownBundle);
// The same for a walk that has resolved the parent folder itself (one that never follows a link
// knows it from its root's resolution): spares asking the file system again for every path.
bool isProtected(const URL& url, const std::string& resolvedParent, const URL& home,
                 const std::optional<URL>& ownBundle);

// The running program's own file, found once; neither it nor any folder that holds it is removed.
const std::optional<URL>& runningAppBundle();

// The pieces, for tests and for callers that explain a refusal.
std::string normalized(std::string_view path); // trailing slashes dropped (a lone "/" stays)
// Lower case of NFC of normalized; bytes that are no UTF-8 are kept as they are.
std::string folded(std::string_view path);
std::string resolvingParent(std::string_view path); // realpath of the parent + the last component

// The tables, verbatim.
extern const std::span<const std::string_view> exactSystemPaths;
extern const std::span<const std::string_view> systemTrees;
extern const std::span<const std::string_view> childrenProtectedSystemFolders;
extern const std::span<const std::string_view> homeFolders;
extern const std::span<const std::string_view> libraryFolders;
extern const std::span<const std::string_view> childrenProtectedHomeFolders;
extern const std::span<const std::string_view> homeTrees;

// What this platform adds: more places, never fewer.
extern const std::span<const std::string_view> linuxSystemTrees;
extern const std::span<const std::string_view> linuxChildrenProtectedSystemFolders;
extern const std::span<const std::string_view> linuxGrandchildrenProtectedSystemFolders;
extern const std::span<const std::string_view> linuxUserRoots;
extern const std::span<const std::string_view> linuxHomeFolders;
extern const std::span<const std::string_view> linuxHomeTrees;

} // namespace CleanerCore::SafetyGuard
