#include "CleanerCore/Junk/JunkScanner.hpp"

#include "CleanerCore/Display/CoreL10n.hpp"
#include "CleanerCore/Files/FileSize.hpp"
#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "CleanerCore/Platform/MountRoots.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"

#include <algorithm>
#include <cctype>
#include <climits>
#include <fcntl.h>
#include <sys/stat.h>

namespace CleanerCore {

namespace {

// The names in an open folder, in the order the file system lists them; none when it can't be read.
std::vector<std::string> listing(int folderFd) {
    std::vector<std::string> names;
    if (folderFd >= 0)
        Platform::listDirectory(
            folderFd, [&names](const Platform::ListedEntry& entry) { names.emplace_back(entry.name); },
            {.statFolders = false});
    return names;
}

bool exists(const URL& url) {
    struct stat info {};
    return Platform::SystemCalls::current().fstatat(AT_FDCWD, url.path().c_str(), &info, 0) == 0;
}

// A source folder that is a link to a folder stands for that folder: many people keep ~/.cache or
// ~/Downloads elsewhere. Its items are then named where they really are, so that the guard judges
// the real place; nothing inside is ever followed.
URL sourceFolder(const URL& base) {
    Platform::SystemCalls& calls = Platform::SystemCalls::current();
    struct stat info {};
    if (calls.fstatat(AT_FDCWD, base.path().c_str(), &info, AT_SYMLINK_NOFOLLOW) != 0 || !S_ISLNK(info.st_mode))
        return base;
    char real[PATH_MAX];
    if (!calls.realpath(base.path().c_str(), real) ||
        calls.fstatat(AT_FDCWD, real, &info, AT_SYMLINK_NOFOLLOW) != 0 || !S_ISDIR(info.st_mode))
        return base;
    return URL::file(real);
}

std::string lowercased(std::string text) {
    std::ranges::transform(text, text.begin(), [](unsigned char c) { return std::tolower(c); });
    return text;
}

} // namespace

// A mount point is never junk: what is mounted there belongs to another file system (a bind mount
// of system files, a tmpfs), however it got below the home.
std::vector<URL> JunkScanner::candidates(const JunkRule::Source& source) const {
    using Kind = JunkRule::Source::Kind;
    const URL base = sourceFolder(home.appending(source.path));
    Platform::MountRoots mounts;
    std::vector<URL> found;
    if (source.kind == Kind::folder) {
        if (exists(base) && mounts.test(AT_FDCWD, base.path().c_str()) == 0)
            found.push_back(base);
        return found;
    }
    const Platform::FileDescriptor folder(Platform::openDirectory(AT_FDCWD, base.path().c_str()));
    for (const std::string& name : listing(folder.get())) {
        const URL entry = base.appending(name);
        const bool keep = source.kind == Kind::contents
                              ? name != ".DS_Store" && !source.names.contains(name)
                              : source.names.contains(lowercased(entry.pathExtension()));
        if (keep && mounts.test(folder.get(), name.c_str()) == 0)
            found.push_back(entry);
    }
    return found;
}

std::vector<JunkGroup> JunkScanner::scan(const std::set<std::string>& runningBundleIDs,
                                         std::stop_token stop) const {
    std::vector<std::vector<URL>> perRule;
    std::vector<URL> all;
    for (const JunkRule& rule : rules) {
        std::vector<URL>& urls = perRule.emplace_back();
        for (const JunkRule::Source& source : rule.sources)
            for (URL& url : candidates(source))
                urls.push_back(std::move(url));
        all.insert(all.end(), urls.begin(), urls.end());
    }
    // One batch, so that the folders of every rule are measured side by side.
    const auto sizes = FileSize::sizes(all, stop);

    std::vector<JunkGroup> groups;
    for (std::size_t r = 0; r < rules.size(); ++r) {
        JunkGroup& group = groups.emplace_back(JunkGroup{rules[r], {}});
        for (const URL& url : perRule[r]) {
            const auto size = sizes.find(url);
            if (size == sizes.end() || size->second < 1)
                continue;
            CleanupItem item{url, size->second, std::nullopt, rules[r].selectedByDefault};
            if (runningBundleIDs.contains(url.lastPathComponent())) {
                item.note = CoreL10n::string("core.note.appOpen");
                item.selectedByDefault = false;
            }
            group.items.push_back(std::move(item));
        }
        std::ranges::stable_sort(group.items, std::ranges::greater{}, &CleanupItem::size);
    }
    return groups;
}

} // namespace CleanerCore
