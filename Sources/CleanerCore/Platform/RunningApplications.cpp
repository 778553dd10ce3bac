#include "CleanerCore/Platform/RunningApplications.hpp"

#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "CleanerCore/Platform/InfoPlist.hpp"
#include "CleanerCore/Platform/SmallFile.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <fcntl.h>
#include <map>

namespace CleanerCore::Platform {

namespace {

constexpr std::size_t smallLimit = 64 << 10; // comm, cgroup, status and .flatpak-info are far smaller

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

bool isProcessNumber(std::string_view name) {
    return !name.empty() && std::ranges::all_of(name, [](char c) { return c >= '0' && c <= '9'; });
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
        text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t' || text.back() == '\r'))
        text.remove_suffix(1);
    return text;
}

std::optional<std::string> unitOfCgroup(std::string_view cgroup) {
    const auto path = applicationCgroupPath(cgroup);
    if (!path)
        return std::nullopt;
    return std::string(path->substr(path->rfind('/') + 1));
}

int parentOf(std::string_view status) {
    constexpr std::string_view key = "\nPPid:";
    const std::size_t at = status.find(key);
    if (at == std::string_view::npos)
        return 0;
    const std::string_view value =
        trimmed(status.substr(at + key.size(), status.find('\n', at + 1) - at - key.size()));
    int parent = 0;
    std::from_chars(value.data(), value.data() + value.size(), parent);
    return parent;
}

std::string unescapedUnitName(std::string_view text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        unsigned value = 0;
        if (text[i] == '\\' && i + 3 < text.size() && text[i + 1] == 'x' &&
            std::from_chars(text.data() + i + 2, text.data() + i + 4, value, 16).ptr == text.data() + i + 4) {
            out += static_cast<char>(value);
            i += 3;
            continue;
        }
        out += text[i];
    }
    return out;
}

struct Process {
    RunningApplication app;
    int parent = 0;
};

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

std::optional<std::string> applicationIDOfUnit(std::string_view unit) {
    if (!unit.starts_with("app-"))
        return std::nullopt;
    unit.remove_prefix(4);
    if (unit.ends_with(".scope")) {
        unit.remove_suffix(6);
        // Scopes end in a random part after the last dash.
        const std::size_t dash = unit.rfind('-');
        if (dash == std::string_view::npos)
            return std::nullopt;
        unit = unit.substr(0, dash);
    } else if (unit.ends_with(".service")) {
        unit.remove_suffix(8);
        unit = unit.substr(0, unit.find('@'));
    } else {
        return std::nullopt;
    }
    // "gnome-org.example.App": the launcher is the part before the first dash that systemd did
    // not escape, unless that part is itself an id (reverse DNS holds dots, launchers don't).
    const std::size_t dash = unit.find('-');
    if (dash != std::string_view::npos && unit.substr(0, dash).find('.') == std::string_view::npos)
        unit.remove_prefix(dash + 1);
    if (unit.empty())
        return std::nullopt;
    return unescapedUnitName(unit);
}

std::optional<std::string> applicationIDOfFlatpakInfo(std::string_view keyFile) {
    bool inApplication = false;
    while (!keyFile.empty()) {
        const std::size_t end = keyFile.find('\n');
        const std::string_view line = trimmed(keyFile.substr(0, end));
        keyFile = end == std::string_view::npos ? std::string_view{} : keyFile.substr(end + 1);
        if (line.starts_with('[')) {
            inApplication = line == "[Application]";
            continue;
        }
        const std::size_t equals = line.find('=');
        if (inApplication && equals != std::string_view::npos && trimmed(line.substr(0, equals)) == "name") {
            const std::string_view name = trimmed(line.substr(equals + 1));
            if (!name.empty())
                return std::string(name);
        }
    }
    return std::nullopt;
}

std::optional<std::string_view> applicationCgroupPath(std::string_view cgroupText) {
    while (!cgroupText.empty()) {
        const std::size_t end = cgroupText.find('\n');
        const std::string_view line = cgroupText.substr(0, end);
        cgroupText = end == std::string_view::npos ? std::string_view{} : cgroupText.substr(end + 1);
        if (!line.starts_with("0::/"))
            continue;
        const std::string_view path = line.substr(3);
        const std::string_view unit = path.substr(path.rfind('/') + 1);
        if (unit.starts_with("app-") && (unit.ends_with(".scope") || unit.ends_with(".service")))
            return path;
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

    std::vector<Process> processes;
    for (const std::string& pid : pids) {
        const std::string base = procRoot + "/" + pid;
        const auto comm = readSmallFile(base + "/comm", smallLimit);
        if (!comm)
            continue; // the process ended meanwhile
        int number = 0;
        std::from_chars(pid.data(), pid.data() + pid.size(), number);
        Process process{{number, *comm, linkTarget(base + "/exe").value_or(""), {}, {}, {}, false},
                        parentOf(readSmallFile(base + "/status", smallLimit).value_or(""))};
        RunningApplication& app = process.app;
        if (!app.name.empty() && app.name.back() == '\n')
            app.name.pop_back();
        if (!app.executablePath.empty())
            app.bundlePath = enclosingAppBundle(app.executablePath);
        if (app.bundlePath) {
            if (const auto plist = InfoPlist::read(*app.bundlePath)) {
                app.bundleIdentifier = plist->text("CFBundleIdentifier");
                if (const auto name = plist->text("CFBundleName"); name && !name->empty())
                    app.name = *name;
            }
            if (app.bundleIdentifier && app.bundleIdentifier->empty())
                app.bundleIdentifier.reset();
            app.isRegular = true;
        }
        app.applicationUnit = unitOfCgroup(readSmallFile(base + "/cgroup", smallLimit).value_or(""));
        if (!app.bundleIdentifier) {
            if (const auto info = readSmallFile(base + "/root/.flatpak-info", smallLimit))
                app.bundleIdentifier = applicationIDOfFlatpakInfo(*info);
        }
        if (!app.bundleIdentifier && app.applicationUnit)
            app.bundleIdentifier = applicationIDOfUnit(*app.applicationUnit);
        processes.push_back(std::move(process));
    }

    // The leader of an application is the process whose parent is not that same application.
    std::map<int, const std::optional<std::string>*> identifierOf;
    for (const Process& process : processes)
        identifierOf.emplace(process.app.pid, &process.app.bundleIdentifier);
    std::vector<RunningApplication> apps;
    apps.reserve(processes.size());
    for (Process& process : processes) {
        RunningApplication& app = process.app;
        if (!app.isRegular && app.bundleIdentifier) {
            const auto parent = identifierOf.find(process.parent);
            app.isRegular = parent == identifierOf.end() || *parent->second != app.bundleIdentifier;
        }
    }
    for (Process& process : processes)
        apps.push_back(std::move(process.app));
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
