#pragma once

#include <string>
#include <vector>

namespace CleanerCore::Platform {

// The folders desktop entries are installed in: $XDG_DATA_HOME/applications (default
// ~/.local/share/applications) and <dir>/applications for each of $XDG_DATA_DIRS (default
// /usr/local/share:/usr/share). Relative entries are ignored, as the XDG rules say.
std::vector<std::string> desktopEntryFolders(const std::string& home);

// The desktop-file ids found in `folders`: "org.example.App.desktop" gives "org.example.App", and
// one found in a subfolder is prefixed with it ("kde4/okular.desktop" gives "kde4-okular").
// Folders that can't be read are skipped.
std::vector<std::string> desktopEntryIDs(const std::vector<std::string>& folders);

} // namespace CleanerCore::Platform
