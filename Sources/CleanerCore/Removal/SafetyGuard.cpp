#include "CleanerCore/Removal/SafetyGuard.hpp"

#include "CleanerCore/Display/CoreL10n.hpp"
#include "CleanerCore/Platform/InstalledFlatpaks.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"

#include <algorithm>
#include <array>
#include <climits>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <unicode/locid.h>
#include <unicode/normalizer2.h>
#include <unicode/unistr.h>
#include <unicode/utf8.h>

namespace CleanerCore::SafetyGuard {
namespace {

constexpr std::array<std::string_view, 21> kExactSystemPaths{
    "/System",      "/Library",      "/Applications", "/Applications/Utilities",
    "/Users",       "/Users/Shared", "/usr",          "/bin",
    "/sbin",        "/private",      "/private/var",  "/private/etc",
    "/private/tmp", "/var",          "/etc",          "/tmp",
    "/opt",         "/Volumes",      "/cores",        "/Network",
    "/home"};

constexpr std::array<std::string_view, 8> kSystemTrees{
    "/System",           "/usr", "/bin", "/sbin", "/private/etc", "/private/var/db", "/Library/Apple",
    "/Library/Keychains"};

constexpr std::array<std::string_view, 4> kChildrenProtectedSystemFolders{"/Library", "/private/var", "/opt",
                                                                          "/Volumes"};

constexpr std::array<std::string_view, 13> kHomeFolders{
    "",      "Library",      "Documents", "Desktop", "Downloads", "Pictures", "Movies",
    "Music", "Applications", "Public",    ".Trash",  ".ssh",      ".gnupg"};

constexpr std::array<std::string_view, 27> kLibraryFolders{"Application Support",
                                                           "Caches",
                                                           "Preferences",
                                                           "Preferences/ByHost",
                                                           "Containers",
                                                           "Group Containers",
                                                           "Saved Application State",
                                                           "Logs",
                                                           "HTTPStorages",
                                                           "WebKit",
                                                           "Cookies",
                                                           "LaunchAgents",
                                                           "Application Scripts",
                                                           "Application Support",
                                                           "Caches",
                                                           "Preferences",
                                                           "LaunchAgents",
                                                           "LaunchDaemons",
                                                           "PrivilegedHelperTools",
                                                           "Logs",
                                                           "Developer",
                                                           "Mobile Documents",
                                                           "CloudStorage",
                                                           "Mail",
                                                           "Messages",
                                                           "Photos",
                                                           "Keychains"};

constexpr std::array<std::string_view, 3> kChildrenProtectedHomeFolders{"Library", "Library/Mobile Documents",
                                                                        "Library/CloudStorage"};

constexpr std::array<std::string_view, 4> kHomeTrees{"Library/Keychains", "Library/Mail", "Library/Messages",
                                                     "Pictures/Photos Library.photoslibrary"};

// This platform's own system places. Every top-level name is already protected by itself; these
// add what lies below.
constexpr std::array<std::string_view, 20> kLinuxSystemTrees{
    "/lib",        "/lib32",   "/lib64",     "/libx32",   "/libexec",     "/etc",          "/boot",
    "/dev",        "/proc",    "/sys",       "/run",      "/snap",        "/efi",          "/srv",
    "/lost+found", "/var/lib", "/var/spool", "/var/mail", "/var/backups", "/var/cache/apt"};
constexpr std::array<std::string_view, 4> kLinuxChildrenProtectedSystemFolders{"/var", "/mnt", "/media",
                                                                               "/var/cache"};
// Removable volumes are mounted at /media/USER/LABEL: the user folder and the volume root both stay.
constexpr std::array<std::string_view, 1> kLinuxGrandchildrenProtectedSystemFolders{"/media"};
// Folders that hold the homes of users: another user's files are never removed.
constexpr std::array<std::string_view, 3> kLinuxUserRoots{"/home", "/root", "/var/home"};
constexpr std::array<std::string_view, 11> kLinuxHomeFolders{
    ".config",      ".local",     ".local/share",
    ".local/state", ".local/bin", ".cache",
    "Videos",       "Templates",  ".local/share/applications",
    ".mozilla",     ".var"};
constexpr std::array<std::string_view, 4> kLinuxHomeTrees{".ssh", ".gnupg", ".local/share/keyrings", ".pki"};

// The tables, folded once.
struct Folded {
    std::vector<std::string> exactSystem, systemTrees, childrenSystem, home, library, childrenHome, homeTrees;
    std::vector<std::string> linuxTrees, linuxChildren, linuxGrandchildren, linuxUserRoots, linuxHome,
        linuxHomeTrees;
};

template <std::size_t N> std::vector<std::string> foldAll(const std::array<std::string_view, N>& table) {
    std::vector<std::string> out;
    out.reserve(N);
    for (std::string_view entry : table)
        out.push_back(folded(entry));
    return out;
}

const Folded& tables() {
    static const Folded t{foldAll(kExactSystemPaths),
                          foldAll(kSystemTrees),
                          foldAll(kChildrenProtectedSystemFolders),
                          foldAll(kHomeFolders),
                          foldAll(kLibraryFolders),
                          foldAll(kChildrenProtectedHomeFolders),
                          foldAll(kHomeTrees),
                          foldAll(kLinuxSystemTrees),
                          foldAll(kLinuxChildrenProtectedSystemFolders),
                          foldAll(kLinuxGrandchildrenProtectedSystemFolders),
                          foldAll(kLinuxUserRoots),
                          foldAll(kLinuxHomeFolders),
                          foldAll(kLinuxHomeTrees)};
    return t;
}

bool inTree(std::string_view path, std::string_view root) {
    return path == root || (path.size() > root.size() && path.starts_with(root) && path[root.size()] == '/');
}

bool below(std::string_view path, std::string_view root) {
    return path.size() > root.size() + 1 && path.starts_with(root) && path[root.size()] == '/';
}

std::string_view parentOf(std::string_view path) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string_view::npos)
        return {};
    return slash == 0 ? std::string_view("/") : path.substr(0, slash);
}

bool anyEquals(std::string_view path, const std::vector<std::string>& entries) {
    return std::any_of(entries.begin(), entries.end(), [&](const std::string& e) { return path == e; });
}

bool anyTree(std::string_view path, const std::vector<std::string>& entries) {
    return std::any_of(entries.begin(), entries.end(), [&](const std::string& e) { return inTree(path, e); });
}

std::string join(std::string_view base, std::string_view relative) {
    std::string out(base);
    if (!relative.empty()) {
        out += '/';
        out += relative;
    }
    return out;
}

bool isDigits(std::string_view text) {
    return !text.empty() &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// The freedesktop trash folders of other volumes: $topdir/.Trash, its per-user $uid folder and that
// folder's files/ and info/, and $topdir/.Trash-$uid with its files/ and info/. What was trashed,
// one level further down, stays removable.
bool isVolumeTrashFolder(const std::vector<std::string_view>& parts) {
    const std::size_t n = parts.size();
    const auto sharedTrash = [](std::string_view part) { return part == ".trash"; };
    const auto userTrash = [](std::string_view part) { return part.starts_with(".trash-"); };
    if (sharedTrash(parts[n - 1]) || userTrash(parts[n - 1]))
        return true;
    if (sharedTrash(parts[n - 2]) && isDigits(parts[n - 1]))
        return true;
    if (userTrash(parts[n - 2]))
        return true;
    return n >= 3 && sharedTrash(parts[n - 3]) && isDigits(parts[n - 2]);
}

bool linuxProtected(std::string_view path, const std::vector<std::string_view>& parts,
                    std::span<const std::string> homes, bool belowAHome) {
    const Folded& t = tables();
    const std::string_view parent = parentOf(path);
    if (anyTree(path, t.linuxTrees) || anyEquals(parent, t.linuxChildren))
        return true;
    if (anyEquals(parentOf(parent), t.linuxGrandchildren))
        return true;
    if (isVolumeTrashFolder(parts))
        return true;
    for (const std::string& root : t.linuxUserRoots)
        if (below(path, root) && !belowAHome)
            return true;
    for (const std::string& home : homes) {
        for (const std::string& entry : t.linuxHome)
            if (path == join(home, entry))
                return true;
        for (const std::string& entry : t.linuxHomeTrees)
            if (inTree(path, join(home, entry)))
                return true;
        // The home trash, its files/ and info/: the trashed items inside stay removable.
        const std::string trash = home + "/.local/share/trash";
        if (path == trash || parent == trash)
            return true;
    }
    return false;
}

// $XDG_DATA_HOME/Trash when the data home is moved elsewhere: it and its folders stay, and so does
// every folder above it.
bool inMovedHomeTrash(std::string_view path, std::string_view parent) {
    static const std::string trash = [] {
        const char* dataHome = std::getenv("XDG_DATA_HOME");
        return dataHome && dataHome[0] == '/' ? folded(std::string(dataHome) + "/Trash") : std::string{};
    }();
    if (trash.empty())
        return false;
    return path == trash || parent == trash || below(trash, path);
}

// Where this platform's applications live. The folders that hold AppImages stay (the files in
// them may go); ~/.var/app, where Flatpaks keep their data, stays itself; and no Flatpak
// installation is ever touched by removal, since a Flatpak is uninstalled by its installation.
// Only the installation's "overrides" folder holds removable things: one settings file per app.
// (~/Applications, ~/.local/bin and ~/.var are in the tables above.)
constexpr std::array<std::string_view, 2> kAppHoldingHomeFolders{"bin", ".var/app"};
constexpr std::string_view kUserFlatpakInstallation = ".local/share/flatpak";

const std::vector<std::string>& flatpakInstallationFolders() {
    static const std::vector<std::string> folders = [] {
        std::vector<std::string> found;
        for (const Platform::FlatpakInstallationPath& installation : Platform::flatpakInstallations())
            found.push_back(folded(installation.path));
        return found;
    }();
    return folders;
}

// The installation, what it holds, and every folder above it.
bool inFlatpakInstallation(std::string_view path, std::string_view installation) {
    return (inTree(path, installation) && !below(path, std::string(installation) + "/overrides")) ||
           below(installation, path);
}

bool appPlaceProtected(std::string_view path, std::span<const std::string> homes) {
    for (const std::string& home : homes) {
        for (std::string_view folder : kAppHoldingHomeFolders)
            if (path == join(home, folder))
                return true;
        if (inFlatpakInstallation(path, join(home, kUserFlatpakInstallation)))
            return true;
    }
    const std::vector<std::string>& installations = flatpakInstallationFolders();
    return std::any_of(installations.begin(), installations.end(), [&](const std::string& installation) {
        return inFlatpakInstallation(path, installation);
    });
}

std::string realOrSelf(const std::string& path) {
    char buffer[PATH_MAX];
    if (Platform::SystemCalls::current().realpath(path.c_str(), buffer))
        return normalized(buffer);
    return normalized(path);
}

// The path as written and with its links resolved: a home or bundle may be reached through a link.
std::vector<std::string> bothSpellings(const URL& url) {
    const std::string path = normalized(standardizedPath(url.path()));
    return {path, realOrSelf(path)};
}

std::vector<std::string> foldedAll(const std::vector<std::string>& paths) {
    std::vector<std::string> out;
    for (const std::string& path : paths)
        out.push_back(folded(path));
    return out;
}

// `path` cut after as many components as `like` has.
std::string_view sameDepthPrefix(std::string_view path, std::string_view like) {
    std::size_t end = 0;
    for (std::size_t k = pathComponents(like).size(); k > 0 && end != std::string_view::npos; --k) {
        const std::size_t start = path.find_first_not_of('/', end);
        end = start == std::string_view::npos ? start : path.find('/', start);
    }
    return end == std::string_view::npos ? path : path.substr(0, end);
}

// Whether `path` lies below one of the homes as the file system sees it. The same bytes are enough.
// A spelling that only folds to a home (other case, other Unicode form) must lead to that very
// home's folder on disk: on a case-sensitive file system "/home/Ana" is someone else's. Where
// nothing stands at that spelling, nothing of anyone's can be removed through it, and text decides.
bool belowOwnHome(std::string_view path, const std::vector<std::string>& homes) {
    Platform::SystemCalls& calls = Platform::SystemCalls::current();
    for (const std::string& home : homes) {
        if (below(path, home))
            return true;
        if (!below(folded(path), folded(home)))
            continue;
        const std::string prefix(sameDepthPrefix(path, home));
        struct stat spelled, real;
        if (calls.fstatat(AT_FDCWD, prefix.c_str(), &spelled, 0) != 0) {
            if (errno == ENOENT || errno == ENOTDIR)
                return true;
            continue;
        }
        if (calls.fstatat(AT_FDCWD, home.c_str(), &real, 0) == 0 && spelled.st_dev == real.st_dev &&
            spelled.st_ino == real.st_ino)
            return true;
    }
    return false;
}

} // namespace

const std::span<const std::string_view> exactSystemPaths{kExactSystemPaths};
const std::span<const std::string_view> systemTrees{kSystemTrees};
const std::span<const std::string_view> childrenProtectedSystemFolders{kChildrenProtectedSystemFolders};
const std::span<const std::string_view> homeFolders{kHomeFolders};
const std::span<const std::string_view> libraryFolders{kLibraryFolders};
const std::span<const std::string_view> childrenProtectedHomeFolders{kChildrenProtectedHomeFolders};
const std::span<const std::string_view> homeTrees{kHomeTrees};
const std::span<const std::string_view> linuxSystemTrees{kLinuxSystemTrees};
const std::span<const std::string_view> linuxChildrenProtectedSystemFolders{
    kLinuxChildrenProtectedSystemFolders};
const std::span<const std::string_view> linuxGrandchildrenProtectedSystemFolders{
    kLinuxGrandchildrenProtectedSystemFolders};
const std::span<const std::string_view> linuxUserRoots{kLinuxUserRoots};
const std::span<const std::string_view> linuxHomeFolders{kLinuxHomeFolders};
const std::span<const std::string_view> linuxHomeTrees{kLinuxHomeTrees};

Refusal::Refusal(std::string refusedPath) : path(std::move(refusedPath)), message(localizedDescription()) {}

std::string Refusal::localizedDescription(const std::optional<std::string>& locale) const {
    return CoreL10n::format("core.safety.protectedPath", locale, {path});
}

std::string normalized(std::string_view path) {
    while (path.size() >= 2 && path.back() == '/')
        path.remove_suffix(1);
    return std::string(path);
}

namespace {

// Lower case of NFC of text that is valid UTF-8.
void foldValid(std::string_view text, std::string& out) {
    if (std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; })) {
        for (char c : text)
            out += c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
        return;
    }
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* nfc = icu::Normalizer2::getNFCInstance(status);
    const icu::UnicodeString source =
        icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), static_cast<int32_t>(text.size())));
    icu::UnicodeString composed = U_SUCCESS(status) ? nfc->normalize(source, status) : source;
    if (U_FAILURE(status))
        composed = source;
    composed.toLower(icu::Locale::getRoot());
    composed.toUTF8String(out);
}

} // namespace

// Bytes that are no UTF-8 stay as they are: names that differ only there must not fold alike.
std::string folded(std::string_view path) {
    const std::string text = normalized(path);
    const auto length = static_cast<int32_t>(text.size());
    std::string out;
    out.reserve(text.size());
    int32_t run = 0;
    for (int32_t i = 0; i < length;) {
        const int32_t start = i;
        UChar32 c;
        U8_NEXT(text.data(), i, length, c);
        if (c >= 0)
            continue;
        foldValid(std::string_view(text).substr(run, start - run), out);
        out.append(text, start, i - start);
        run = i;
    }
    foldValid(std::string_view(text).substr(run), out);
    return out;
}

std::string resolvingParent(std::string_view path) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string_view::npos)
        return std::string(path);
    const std::string last(path.substr(slash + 1));
    const std::string parent = realOrSelf(slash == 0 ? std::string("/") : std::string(path.substr(0, slash)));
    return parent == "/" ? "/" + last : parent + "/" + last;
}

namespace {

// The protected test on a folded path, given folded homes and bundles; first hit wins.
// `belowAHome` says whether the path lies below one of the homes, as the file system sees it.
bool isProtectedPath(std::string_view path, std::span<const std::string> homes,
                     std::span<const std::string> bundles, bool belowAHome) {
    const Folded& t = tables();
    const std::vector<std::string_view> parts = pathComponents(path);
    if (parts.size() < 2)
        return true;
    if (anyEquals(path, t.exactSystem) || anyTree(path, t.systemTrees))
        return true;
    const std::string_view parent = parentOf(path);
    if (anyEquals(parent, t.childrenSystem))
        return true;
    for (const std::string& entry : t.library)
        if (path == "/library/" + entry)
            return true;
    if (parts.back() == ".trashes" || parts[parts.size() - 2] == ".trashes")
        return true;
    for (const std::string& home : homes) {
        if (path == home || below(home, path))
            return true;
        for (const std::string& entry : t.home)
            if (path == join(home, entry))
                return true;
        for (const std::string& entry : t.library)
            if (path == home + "/library/" + entry)
                return true;
        for (const std::string& entry : t.childrenHome)
            if (parent == join(home, entry))
                return true;
        for (const std::string& entry : t.homeTrees)
            if (inTree(path, join(home, entry)))
                return true;
    }
    if (path.starts_with("/users/") && !path.starts_with("/users/shared/") && !belowAHome)
        return true;
    for (const std::string& bundle : bundles)
        if (path == bundle || below(bundle, path) || below(path, bundle))
            return true;
    return linuxProtected(path, parts, homes, belowAHome) || inMovedHomeTrash(path, parent) ||
           appPlaceProtected(path, homes);
}

// The path removal must act on, or nothing when the guard refuses; `literal` is what a refusal names.
// `knownParent`, when given, is the caller's own resolution of the parent folder.
std::optional<URL> evaluate(const URL& url, const URL& home, const std::optional<URL>& ownBundle,
                            std::string& literal,
                            const std::optional<std::string>& knownParent = std::nullopt) {
    literal = normalized(url.isFile() ? standardizedPath(url.path()) : url.path());
    if (!url.isFile() || !literal.starts_with('/') || literal == "/")
        return std::nullopt;
    // A home that is no absolute path would make every test below it meaningless.
    if (!home.isFile() || !home.path().starts_with('/'))
        return std::nullopt;
    std::string resolved;
    if (knownParent) {
        const std::string parent = normalized(standardizedPath(*knownParent));
        resolved = (parent == "/" ? "" : parent) + "/" + url.lastPathComponent();
    } else {
        resolved = resolvingParent(literal);
    }
    const std::vector<std::string> homeSpellings = bothSpellings(home);
    const std::vector<std::string> homes = foldedAll(homeSpellings);
    std::vector<std::string> bundles;
    if (ownBundle)
        bundles = foldedAll(bothSpellings(*ownBundle));
    if (isProtectedPath(folded(literal), homes, bundles, belowOwnHome(literal, homeSpellings)) ||
        isProtectedPath(folded(resolved), homes, bundles, belowOwnHome(resolved, homeSpellings)))
        return std::nullopt;
    return URL::file(resolved);
}

} // namespace

URL check(const URL& url, const URL& home, const std::optional<URL>& ownBundle) {
    std::string literal;
    if (std::optional<URL> target = evaluate(url, home, ownBundle, literal))
        return *target;
    throw Refusal(literal);
}

bool isProtected(const URL& url, const URL& home, const std::optional<URL>& ownBundle) {
    std::string literal;
    return !evaluate(url, home, ownBundle, literal).has_value();
}

bool isProtected(const URL& url, const std::string& resolvedParent, const URL& home,
                 const std::optional<URL>& ownBundle) {
    std::string literal;
    return !evaluate(url, home, ownBundle, literal, resolvedParent).has_value();
}

// The program file itself, not the folder it was started from: that may be any folder of the
// user's, such as Downloads, whose other files stay removable.
const std::optional<URL>& runningAppBundle() {
    static const std::optional<URL> bundle = []() -> std::optional<URL> {
        char buffer[PATH_MAX];
        const ssize_t length = Platform::SystemCalls::current().readlinkat(AT_FDCWD, "/proc/self/exe", buffer,
                                                                            sizeof buffer);
        if (length <= 0 || length == static_cast<ssize_t>(sizeof buffer) || buffer[0] != '/')
            return std::nullopt;
        return URL::file(std::string(buffer, static_cast<std::size_t>(length)));
    }();
    return bundle;
}

} // namespace CleanerCore::SafetyGuard
