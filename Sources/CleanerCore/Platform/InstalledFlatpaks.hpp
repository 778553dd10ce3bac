#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace CleanerCore::Platform {

// One Flatpak installation: the user's ($FLATPAK_USER_DIR, else ~/.local/share/flatpak) or a
// system one (/var/lib/flatpak and those declared in /etc/flatpak/installations.d).
struct FlatpakInstallationPath {
    std::string path;
    bool isUser = false;

    bool operator==(const FlatpakInstallationPath&) const = default;
};

// One installed ref (an application or a runtime) as libflatpak reports it.
struct InstalledFlatpak {
    std::string id; // "org.example.App"
    std::string branch;
    bool isApp = false;
    std::optional<std::string> name;    // from the app's AppStream data, untranslated
    std::optional<std::string> version; // likewise
    std::string deployPath;             // the deployed files, ".../app/<id>/<arch>/<branch>/active"
    std::int64_t installedSize = 0;
    std::string origin; // the remote it came from
    FlatpakInstallationPath installation;

    bool operator==(const InstalledFlatpak&) const = default;
};

// Every installation libflatpak knows of, the user's first; those that can't be opened are left out.
std::vector<FlatpakInstallationPath> flatpakInstallations();

// The refs installed in every installation, in installation order. An installation that can't
// be read gives nothing. A name or version libflatpak lacks is looked up in the deployed
// AppStream files; when those are missing too it stays absent.
std::vector<InstalledFlatpak> installedFlatpaks();

} // namespace CleanerCore::Platform
