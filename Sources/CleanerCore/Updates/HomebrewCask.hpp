#pragma once

#include "CleanerCore/Files/URL.hpp"

#include <chrono>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace CleanerCore {

class UpdateFetching;

// One cask of Homebrew's public index that installs an application.
struct HomebrewCask {
    std::string token;   // also its folder name in a Caskroom
    std::string version; // as the index gives it, possibly "1.2.3,build"
    std::vector<std::string> appNames;  // bundle file names, "Foo.app"
    std::vector<std::string> bundleIDs; // from the cask's quit instructions
    std::optional<URL> downloadURL;
    std::optional<URL> homepage;

    bool operator==(const HomebrewCask&) const = default;

    // The part before the first comma; nothing for an empty version or "latest".
    std::optional<std::string> comparableVersion() const;

    // The casks of the API document that deliver an app; anything malformed gives fewer or none.
    static std::vector<HomebrewCask> index(std::string_view apiJSON);
    // The compact form kept in the cache file, and back (nothing when it does not decode).
    static std::string encode(const std::vector<HomebrewCask>& casks);
    static std::optional<std::vector<HomebrewCask>> decode(std::string_view json);
};

// The cask index as the update finder needs it: from a fresh cache file, else from the network
// (then cached), else from the cache however old. Nothing is ever shown to the user from here.
class HomebrewCaskIndex {
public:
    static constexpr std::string_view defaultIndexURL = "https://formulae.brew.sh/api/cask.json";
    static constexpr std::string_view cacheFileName = "homebrew-casks.json";

    HomebrewCaskIndex(const UpdateFetching& fetcher, std::string cacheFolder, std::chrono::seconds maxAge,
                      URL indexURL = URL::parse(defaultIndexURL));

    std::optional<std::vector<HomebrewCask>> casks() const;
    // The cache alone, however old: for working offline.
    std::optional<std::vector<HomebrewCask>> cached() const;

private:
    const UpdateFetching& fetcher;
    std::string cacheFolder;
    std::chrono::seconds maxAge;
    URL indexURL;
};

// The names of the casks installed on this machine: the entries of every Caskroom folder that can
// be read, hidden ones left out.
std::set<std::string> installedCaskTokens(const std::vector<std::string>& caskroomFolders);

} // namespace CleanerCore
