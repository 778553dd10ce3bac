#pragma once

#include <optional>
#include <string>

namespace CleanerCore::Platform {

// Uninstalls the Flatpak app deployed at `deployPath` (".../app/<id>/<arch>/<branch>/active") from
// its own installation with a libflatpak transaction. A user installation needs no password; a
// system one asks the administrator through polkit. The app's data in ~/.var/app stays: that is a
// leftover for Cleaner. Returns nothing when the app went, else a plain reason in the engine's
// language. Blocking; call it off the interface thread.
std::optional<std::string> uninstallFlatpak(const std::string& deployPath);

// The installation folder and the ref ("app/<id>/<arch>/<branch>") of a deploy folder, or nothing
// when the path is not shaped like one.
struct FlatpakDeployment {
    std::string installation;
    std::string ref;
    bool operator==(const FlatpakDeployment&) const = default;
};
std::optional<FlatpakDeployment> flatpakDeployment(const std::string& deployPath);

} // namespace CleanerCore::Platform
