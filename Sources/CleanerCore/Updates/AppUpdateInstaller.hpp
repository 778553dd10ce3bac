#pragma once

#include "CleanerCore/Files/URL.hpp"
#include "CleanerCore/Updates/AppUpdate.hpp"
#include "CleanerCore/Updates/CommandRunning.hpp"
#include "CleanerCore/Updates/UpdateFetching.hpp"

#include <chrono>
#include <functional>
#include <optional>
#include <stdexcept>
#include <stop_token>
#include <string>
#include <vector>

namespace CleanerCore {

// Replaces an installed bundle with the one behind a feed's download, trusting nothing in it: it
// has to be the same app, newer, and pass every signature check before the old copy is swapped out
// (recoverably) and handed to the trash. App Store, Homebrew and Flatpak updates never come here.
class AppUpdateInstaller {
public:
    enum class Stage { downloading, verifying, installing };
    enum class ArchiveKind { diskImage, zip };

    class Failure : public std::runtime_error {
    public:
        enum class Kind {
            swapFailed,         // the file moves failed; detail is the system's description
            commandFailed,      // a tool exited non-zero; detail is "tool: " + its first error text
            noDownload,         // the update has nothing installable
            unsupportedArchive, // neither disk image nor zip (or no tool here to open it)
            noAppInArchive,
            appRunning,
            bundleIDMismatch,
            notNewer,
            signatureInvalid,
            notNotarized,
            teamMismatch,
        };

        explicit Failure(Kind kind, std::string detail = {});
        Kind kind() const { return kind_; }
        const std::string& detail() const { return detail_; }
        bool operator==(const Failure& other) const {
            return kind_ == other.kind_ && detail_ == other.detail_;
        }

    private:
        Kind kind_;
        std::string detail_;
    };

    // The programs behind each step. Signature, assessment and team have no tool on this system:
    // left empty, their checks fail closed.
    struct Tools {
        std::string unzip = "/usr/bin/bsdtar";
        std::optional<std::string> imageUnpack; // 7z, where installed
        std::string copy = "/usr/bin/cp";
        std::optional<std::string> signature;
        std::optional<std::string> assessment;
        std::optional<std::string> team;

        // What this machine has.
        static Tools installed();
    };

    // The two file operations of a swap, replaceable so that tests can make either one fail.
    struct FileMoves {
        std::function<void(const std::string& from, const std::string& to)> copy;
        std::function<void(const std::string& from, const std::string& to)> rename;

        static FileMoves system(); // a recursive copy keeping links and modes; rename(2)
    };

    using Trash = std::function<void(const URL&)>;

    AppUpdateInstaller(const UpdateFetching& fetcher, const CommandRunning& runner);

    const UpdateFetching& fetcher;
    const CommandRunning& runner;
    URL workFolder; // the temporary folder + "Zephrane-Updates"
    Trash trash;    // moveToTrash
    Tools tools = Tools::installed();
    FileMoves moves = FileMoves::system();

    // Download, extract, verify, swap. The job folder is gone on every way out. Throws Failure,
    // the fetcher's errors, std::system_error, or OperationCancelled when `stop` was requested
    // after the download. `isRunning` and `progress` are called from the calling thread.
    void install(const AppUpdate& update, const std::function<bool(const std::string&)>& isRunning,
                 const std::function<void(Stage)>& progress, std::stop_token stop = {}) const;

    static std::optional<ArchiveKind> archiveKind(std::string_view pathExtension);
    // By content first (zip signature, UDIF trailer), then by name.
    static std::optional<ArchiveKind> archiveKind(const URL& file);

    URL extractApp(const URL& archive, const URL& staged, const AppUpdate& update) const;
    // Candidates at the top and one folder down, never through a link.
    static std::optional<URL> findApp(const URL& folder, const AppUpdate& update);
    void verify(const URL& staged, const URL& installed) const;
    void swap(const URL& installed, const URL& staged, bool appIsRunning) const;

    std::optional<std::string> teamID(const URL& app) const;
    static std::optional<std::string> teamID(std::string_view codesignOutput);

    // A command that must succeed; a non-zero status is commandFailed.
    void run(const std::string& path, const std::vector<std::string>& arguments,
             std::chrono::milliseconds timeout) const;

    // Through Cleaner in trash mode, guarded for the user's home and this program's own file.
    static void moveToTrash(const URL& url);

    class OperationCancelled : public std::runtime_error {
    public:
        OperationCancelled() : std::runtime_error("cancelled") {}
    };
};

} // namespace CleanerCore
