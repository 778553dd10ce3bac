#include "CleanerCore/Platform/RunningApplications.hpp"

#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"

#include <plist/plist.h>

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <memory>

namespace CleanerCore::Platform {

namespace {

constexpr std::size_t maximumFileSize = 1 << 20; // an Info.plist or a comm file is far smaller

// The whole of a small file, or nothing when it can't be read.
std::optional<std::string> readSmallFile(const std::string& path) {
    SystemCalls& calls = SystemCalls::current();
    const FileDescriptor fd(calls.openat(AT_FDCWD, path.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW));
    if (!fd)
        return std::nullopt;
    std::string content;
    std::array<char, 4096> chunk{};
    for (;;) {
        const ssize_t got = calls.read(fd.get(), chunk.data(), chunk.size());
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return std::nullopt;
        if (got == 0 || content.size() > maximumFileSize)
            return content;
        content.append(chunk.data(), static_cast<std::size_t>(got));
    }
}

std::optional<std::string> linkTarget(const std::string& path) {
    std::array<char, 4096> buffer{};
    const ssize_t length =
        SystemCalls::current().readlinkat(AT_FDCWD, path.c_str(), buffer.data(), buffer.size());
    if (length <= 0 || static_cast<std::size_t>(length) >= buffer.size())
        return std::nullopt;
    std::string target(buffer.data(), static_cast<std::size_t>(length));
    // The kernel marks an executable replaced on disk since the process started.
    constexpr std::string_view deleted = " (deleted)";
    if (target.ends_with(deleted))
        target.erase(target.size() - deleted.size());
    return target;
}

std::optional<std::string> stringValue(plist_t dictionary, const char* key) {
    const plist_t node = plist_dict_get_item(dictionary, key);
    if (node == nullptr || plist_get_node_type(node) != PLIST_STRING)
        return std::nullopt;
    std::uint64_t length = 0;
    const char* value = plist_get_string_ptr(node, &length);
    if (value == nullptr || length == 0)
        return std::nullopt;
    return std::string(value, length);
}

struct BundleFacts {
    std::optional<std::string> identifier;
    std::optional<std::string> name;
};

BundleFacts readBundle(const std::string& bundlePath) {
    const auto content = readSmallFile(bundlePath + "/Contents/Info.plist");
    if (!content || content->empty())
        return {};
    plist_t root = nullptr;
    plist_from_memory(content->data(), static_cast<std::uint32_t>(content->size()), &root);
    const std::unique_ptr<void, decltype(&plist_free)> owner(root, &plist_free);
    if (root == nullptr || plist_get_node_type(root) != PLIST_DICT)
        return {};
    return {stringValue(root, "CFBundleIdentifier"), stringValue(root, "CFBundleName")};
}

bool isProcessNumber(std::string_view name) {
    return !name.empty() && std::ranges::all_of(name, [](char c) { return c >= '0' && c <= '9'; });
}

} // namespace

std::optional<std::string> enclosingAppBundle(const std::string& executablePath) {
    // Walk up from the executable's folder, so that a helper application inside another counts as itself.
    std::string::size_type end = executablePath.rfind('/');
    while (end != std::string::npos && end > 0) {
        const std::string folder = executablePath.substr(0, end);
        const std::string::size_type slash = folder.rfind('/');
        const std::string_view name = std::string_view(folder).substr(slash + 1);
        if (name.size() > 4 && name.ends_with(".app"))
            return folder;
        end = slash;
    }
    return std::nullopt;
}

std::vector<RunningApplication> runningApplications(const std::string& procRoot) {
    std::vector<std::string> pids;
    const FileDescriptor fd(openDirectory(AT_FDCWD, procRoot.c_str()));
    if (!fd)
        return {};
    listDirectory(fd.get(),
                  [&pids](const ListedEntry& entry) {
                      if (isProcessNumber(entry.name))
                          pids.emplace_back(entry.name);
                  },
                  {.statFolders = false});

    std::vector<RunningApplication> apps;
    for (const std::string& pid : pids) {
        const std::string base = procRoot + "/" + pid;
        const auto comm = readSmallFile(base + "/comm");
        if (!comm)
            continue; // the process ended meanwhile
        RunningApplication app{std::stoi(pid), *comm, linkTarget(base + "/exe").value_or(""), {}, {}};
        if (!app.name.empty() && app.name.back() == '\n')
            app.name.pop_back();
        if (!app.executablePath.empty())
            app.bundlePath = enclosingAppBundle(app.executablePath);
        if (app.bundlePath) {
            const BundleFacts facts = readBundle(*app.bundlePath);
            app.bundleIdentifier = facts.identifier;
            if (facts.name)
                app.name = *facts.name;
        }
        apps.push_back(std::move(app));
    }
    return apps;
}

std::set<std::string> runningBundleIdentifiers(const std::string& procRoot) {
    std::set<std::string> identifiers;
    for (const RunningApplication& app : runningApplications(procRoot))
        if (app.bundleIdentifier)
            identifiers.insert(*app.bundleIdentifier);
    return identifiers;
}

} // namespace CleanerCore::Platform
