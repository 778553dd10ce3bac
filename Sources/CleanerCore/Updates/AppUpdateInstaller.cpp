#include "CleanerCore/Updates/AppUpdateInstaller.hpp"

#include "CleanerCore/Apps/AppBundleInfo.hpp"
#include "CleanerCore/Removal/Cleaner.hpp"
#include "CleanerCore/Removal/SafetyGuard.hpp"
#include "CleanerCore/Updates/AppVersion.hpp"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <system_error>

namespace CleanerCore {
namespace fs = std::filesystem;
using namespace std::chrono_literals;

namespace {

using Kind = AppUpdateInstaller::Failure::Kind;

std::string newUUID() {
    static thread_local std::mt19937_64 random{std::random_device{}()};
    std::uniform_int_distribution<int> digit(0, 15);
    std::string text;
    for (int i = 0; i < 32; ++i) {
        if (i == 8 || i == 12 || i == 16 || i == 20)
            text += '-';
        text += "0123456789ABCDEF"[digit(random)];
    }
    return text;
}

URL home() {
    const char* value = std::getenv("HOME");
    return URL::file(value && *value ? value : "/");
}

// Our own scratch files go for good, through the same guarded path as everything else.
void removeForGood(const URL& url) {
    const std::array items{CleanupItem{url}};
    Cleaner(RemovalMode::permanent, home(), SafetyGuard::runningAppBundle()).remove(items);
}

std::string lowercased(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

std::optional<std::string> executable(const char* path) {
    std::error_code error;
    return fs::is_regular_file(path, error) ? std::optional<std::string>(path) : std::nullopt;
}

void copyTree(const std::string& from, const std::string& to) {
    fs::copy(from, to, fs::copy_options::recursive | fs::copy_options::copy_symlinks);
}

void renameItem(const std::string& from, const std::string& to) {
    if (std::rename(from.c_str(), to.c_str()) != 0)
        throw std::system_error(errno, std::generic_category(), "rename");
}

std::string describe(const std::exception& error) {
    if (const auto* system = dynamic_cast<const std::system_error*>(&error))
        return system->code().message();
    return error.what();
}

} // namespace

AppUpdateInstaller::Failure::Failure(Kind kind, std::string detail)
    : std::runtime_error(detail.empty() ? "update installation failed" : detail), kind_(kind),
      detail_(std::move(detail)) {}

AppUpdateInstaller::Tools AppUpdateInstaller::Tools::installed() {
    Tools tools;
    tools.imageUnpack = executable("/usr/bin/7z");
    return tools;
}

AppUpdateInstaller::FileMoves AppUpdateInstaller::FileMoves::system() {
    return {copyTree, renameItem};
}

AppUpdateInstaller::AppUpdateInstaller(const UpdateFetching& fetcher, const CommandRunning& runner)
    : fetcher(fetcher), runner(runner),
      workFolder(URL::file((fs::temp_directory_path() / "Zephrane-Updates").string())), trash(moveToTrash) {}

void AppUpdateInstaller::install(const AppUpdate& update,
                                 const std::function<bool(const std::string&)>& isRunning,
                                 const std::function<void(Stage)>& progress, std::stop_token stop) const {
    if (!update.canInstallDownload() || !update.downloadURL)
        throw Failure(Kind::noDownload);
    const URL job = workFolder.appending(newUUID());
    fs::create_directories(job.path());
    struct Cleanup {
        URL job;
        ~Cleanup() { removeForGood(job); }
    } cleanup{job};

    progress(Stage::downloading);
    const URL archive = fetcher.download(*update.downloadURL, job);
    if (stop.stop_requested())
        throw OperationCancelled();

    progress(Stage::verifying);
    const URL staged = extractApp(archive, job.appending("staged"), update);
    verify(staged, update.appURL);

    progress(Stage::installing);
    if (!update.bundleID)
        throw Failure(Kind::bundleIDMismatch);
    swap(update.appURL, staged, isRunning(*update.bundleID));
}

std::optional<AppUpdateInstaller::ArchiveKind>
AppUpdateInstaller::archiveKind(std::string_view pathExtension) {
    const std::string extension = lowercased(std::string(pathExtension));
    if (extension == "dmg")
        return ArchiveKind::diskImage;
    if (extension == "zip")
        return ArchiveKind::zip;
    return std::nullopt;
}

std::optional<AppUpdateInstaller::ArchiveKind> AppUpdateInstaller::archiveKind(const URL& file) {
    std::ifstream in(file.path(), std::ios::binary);
    if (!in)
        return std::nullopt;
    std::array<char, 4> head{};
    if (in.read(head.data(), 4) && std::string_view(head.data(), 4) == std::string_view("PK\x03\x04", 4))
        return ArchiveKind::zip;
    std::error_code error;
    const auto size = fs::file_size(file.path(), error);
    if (!error && size >= 512) {
        in.clear();
        in.seekg(static_cast<std::streamoff>(size - 512));
        if (in.read(head.data(), 4) && std::string_view(head.data(), 4) == "koly")
            return ArchiveKind::diskImage;
    }
    return archiveKind(file.pathExtension());
}

URL AppUpdateInstaller::extractApp(const URL& archive, const URL& staged, const AppUpdate& update) const {
    fs::create_directories(staged.path());
    const auto kind = archiveKind(archive);
    if (!kind)
        throw Failure(Kind::unsupportedArchive);
    if (*kind == ArchiveKind::zip) {
        run(tools.unzip, {"-x", "-f", archive.path(), "-C", staged.path()}, 60s);
        const auto app = findApp(staged, update);
        if (!app)
            throw Failure(Kind::noAppInArchive);
        return *app;
    }
    // No mounting here: the image is unpacked into the folder it would be mounted on, which goes
    // with the job folder, so there is nothing to detach.
    if (!tools.imageUnpack)
        throw Failure(Kind::unsupportedArchive);
    const URL mount = archive.deletingLastPathComponent().appending("mount");
    fs::create_directories(mount.path());
    run(*tools.imageUnpack, {"x", "-y", "-o" + mount.path(), archive.path()}, 120s);
    const auto app = findApp(mount, update);
    if (!app)
        throw Failure(Kind::noAppInArchive);
    const URL copy = staged.appending(app->lastPathComponent());
    run(tools.copy, {"-a", "--", app->path(), copy.path()}, 300s);
    return copy;
}

std::optional<URL> AppUpdateInstaller::findApp(const URL& folder, const AppUpdate& update) {
    std::vector<URL> candidates;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(folder.path(), error)) {
        const URL url = URL::file(entry.path().string());
        if (url.pathExtension() == "app") {
            candidates.push_back(url);
            continue;
        }
        std::error_code kindError;
        if (entry.is_symlink(kindError) || !entry.is_directory(kindError))
            continue;
        std::error_code innerError;
        for (const auto& inner : fs::directory_iterator(entry.path(), innerError)) {
            const URL innerURL = URL::file(inner.path().string());
            if (innerURL.pathExtension() == "app")
                candidates.push_back(innerURL);
        }
    }
    // Directory order is no order at all; sorted, "first" means the same on every run.
    std::sort(candidates.begin(), candidates.end(),
              [](const URL& a, const URL& b) { return a.path() < b.path(); });

    std::vector<AppBundleInfo> readable;
    for (const URL& candidate : candidates)
        if (auto info = AppBundleInfo::fromBundle(candidate))
            readable.push_back(std::move(*info));
    if (update.bundleID)
        for (const auto& info : readable)
            if (info.bundleID == update.bundleID)
                return info.url;
    for (const auto& info : readable)
        if (info.url.lastPathComponent() == update.appURL.lastPathComponent())
            return info.url;
    return std::nullopt;
}

void AppUpdateInstaller::verify(const URL& staged, const URL& installed) const {
    const auto incoming = AppBundleInfo::fromBundle(staged);
    const auto current = AppBundleInfo::fromBundle(installed);
    if (!incoming || !current)
        throw Failure(Kind::noAppInArchive);
    if (!incoming->bundleID || !current->bundleID || *incoming->bundleID != *current->bundleID)
        throw Failure(Kind::bundleIDMismatch);
    if (!AppVersion::isUpdate(incoming->shortVersion, incoming->buildVersion, current->shortVersion,
                              current->buildVersion))
        throw Failure(Kind::notNewer);
    const auto passes = [&](const std::optional<std::string>& tool, std::vector<std::string> arguments,
                            std::chrono::milliseconds timeout) {
        return tool && runner.run(*tool, arguments, timeout).status == 0;
    };
    if (!passes(tools.signature, {"--verify", "--deep", "--strict", staged.path()}, 180s))
        throw Failure(Kind::signatureInvalid);
    if (!passes(tools.assessment, {"-a", "-t", "exec", staged.path()}, 120s))
        throw Failure(Kind::notNotarized);
    const auto incomingTeam = teamID(staged);
    const auto currentTeam = teamID(installed);
    if (!incomingTeam || !currentTeam || *incomingTeam != *currentTeam)
        throw Failure(Kind::teamMismatch);
}

void AppUpdateInstaller::swap(const URL& installed, const URL& staged, bool appIsRunning) const {
    if (appIsRunning)
        throw Failure(Kind::appRunning);
    const URL parent = installed.deletingLastPathComponent();
    std::string base = installed.lastPathComponent();
    if (const std::string extension = installed.pathExtension(); !extension.empty())
        base.resize(base.size() - extension.size() - 1);
    std::string version = "old";
    if (const auto info = AppBundleInfo::fromBundle(installed))
        version = info->displayVersion().value_or("old");
    const std::string tag = newUUID().substr(0, 8);

    const URL incoming = parent.appending(base + "-" + tag + ".zephrane-incoming.app");
    URL backup = parent.appending(base + " " + version + ".app");
    std::error_code error;
    if (fs::symlink_status(backup.path(), error).type() != fs::file_type::not_found)
        backup = parent.appending(base + " " + version + " " + tag + ".app");

    const auto trashQuietly = [&](const URL& url) {
        try {
            if (fs::symlink_status(url.path(), error).type() != fs::file_type::not_found)
                trash(url);
        } catch (...) {
        }
    };
    try {
        moves.copy(staged.path(), incoming.path());
    } catch (const std::exception& failure) {
        trashQuietly(incoming); // a partial copy is nobody's app
        throw Failure(Kind::swapFailed, describe(failure));
    }
    try {
        moves.rename(installed.path(), backup.path());
    } catch (const std::exception& failure) {
        trashQuietly(incoming);
        throw Failure(Kind::swapFailed, describe(failure));
    }
    try {
        moves.rename(incoming.path(), installed.path());
    } catch (const std::exception& failure) {
        try {
            moves.rename(backup.path(), installed.path());
        } catch (...) {
        }
        trashQuietly(incoming);
        throw Failure(Kind::swapFailed, describe(failure));
    }
    trash(backup);
}

std::optional<std::string> AppUpdateInstaller::teamID(const URL& app) const {
    if (!tools.team)
        return std::nullopt;
    const auto result = runner.run(*tools.team, {"-dv", "--verbose=2", app.path()}, 60s);
    return teamID(result.standardOutput + "\n" + result.standardError);
}

std::optional<std::string> AppUpdateInstaller::teamID(std::string_view output) {
    constexpr std::string_view prefix = "TeamIdentifier=";
    while (!output.empty()) {
        const auto end = output.find('\n');
        std::string_view line = output.substr(0, end);
        output = end == std::string_view::npos ? std::string_view() : output.substr(end + 1);
        if (!line.starts_with(prefix))
            continue;
        line.remove_prefix(prefix.size());
        const auto first = line.find_first_not_of(" \t");
        if (first == std::string_view::npos)
            return std::nullopt;
        line = line.substr(first, line.find_last_not_of(" \t") - first + 1);
        if (line == "not set")
            return std::nullopt;
        return std::string(line);
    }
    return std::nullopt;
}

void AppUpdateInstaller::run(const std::string& path, const std::vector<std::string>& arguments,
                             std::chrono::milliseconds timeout) const {
    const auto result = runner.run(path, arguments, timeout);
    if (result.status != 0)
        throw Failure(Kind::commandFailed,
                      URL::file(path).lastPathComponent() + ": " + result.standardError.substr(0, 200));
}

void AppUpdateInstaller::moveToTrash(const URL& url) {
    const std::array items{CleanupItem{url}};
    const auto report = Cleaner(RemovalMode::trash, home(), SafetyGuard::runningAppBundle()).remove(items);
    if (!report.failures.empty())
        throw Failure(Kind::swapFailed, report.failures.front().reason);
}

} // namespace CleanerCore
