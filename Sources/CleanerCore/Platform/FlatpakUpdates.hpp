#pragma once

#include "CleanerCore/Platform/InstalledFlatpaks.hpp"

#include <functional>
#include <optional>
#include <stdexcept>
#include <stop_token>
#include <string>
#include <vector>

namespace CleanerCore::Platform {

// An installed Flatpak app whose remote offers a newer commit.
struct FlatpakUpdate {
    std::string id;
    std::string branch;
    std::string origin;
    std::string deployPath; // of the installed commit, as InstalledFlatpak has it
    FlatpakInstallationPath installation;
    std::optional<std::string> installedVersion; // AppStream version of what is installed
    std::string installedCommit;
    std::optional<std::string> offeredVersion; // from the remote's AppStream data
    std::string offeredCommit;

    bool operator==(const FlatpakUpdate&) const = default;
};

// The apps of every installation that have an update. Online, each installation asks its remotes
// (libflatpak's own check) and refreshes their AppStream data; offline, only what the
// installation already holds is read: a cached remote commit, or a newer version in the remote's
// AppStream data from the last refresh. An unreachable remote means no update, silently.
std::vector<FlatpakUpdate> flatpakUpdates(bool offline);

enum class FlatpakUpdateStage { downloading, installing };

// libflatpak's own words for why an update transaction did not complete.
class FlatpakUpdateError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Updates the app to what its remote offers, in one libflatpak transaction of its installation
// (OSTree checks the remote's signatures when it has them; a system installation may ask for the
// administrator through polkit). `progress` hears each stage once, in order, from this thread.
// Throws FlatpakUpdateError, also when `stop` cuts the transaction short (OSTree leaves the old
// deployment in place until the new one is complete).
void installFlatpakUpdate(const FlatpakUpdate& update, const std::function<void(FlatpakUpdateStage)>& progress,
                          std::stop_token stop = {});

} // namespace CleanerCore::Platform
