#include "Arguments.hpp"
#include "Cli.hpp"

#include "CleanerCore/Apps/AppInventory.hpp"
#include "CleanerCore/Files/FileSize.hpp"

#include <fmt/chrono.h>
#include <nlohmann/json.hpp>

#include <cstdlib>
#include <ostream>

namespace ZephraneCli {

namespace {

// The program's own identifier: it never offers to remove itself.
const std::set<std::string> ownBundleIDs{"dev.tavrix.zephrane"};

std::string isoDate(const std::chrono::system_clock::time_point& when) {
    return fmt::format("{:%Y-%m-%dT%H:%M:%SZ}", std::chrono::floor<std::chrono::seconds>(when));
}

nlohmann::json optionalText(const std::optional<std::string>& text) {
    return text ? nlohmann::json(*text) : nlohmann::json();
}

} // namespace

// The installed apps: bundles, Flatpaks and AppImages, sorted by name. Text: one line per app,
// "KIND<TAB>BYTES<TAB>NAME<TAB>ID<TAB>VERSION<TAB>LAST-USED<TAB>BLOCKER<TAB>PATH", "-" where unknown.
int runApps(const std::vector<std::string>& words, const Streams& streams) {
    std::ostream& out = streams.out;
    std::ostream& err = streams.err;
    const Arguments arguments = Arguments::parse(words, {"json"}, {});
    if (!arguments.positionals().empty())
        throw UsageError("apps takes no path; it lists the installed applications");
    const char* home = std::getenv("HOME");
    if (home == nullptr || *home == '\0') {
        err << "zephrane-cli apps: HOME is not set\n";
        return 1;
    }

    using namespace CleanerCore;
    const auto apps = AppInventory::installedApps(AppInventory::defaultFolders(),
                                                  AppInventory::Sources::forHome(URL::file(home)));
    // What the installation reports needs no walk; bundles and AppImages are measured together.
    std::vector<URL> measured;
    for (const InstalledApp& app : apps)
        if (!app.installedSize)
            measured.push_back(app.url);
    const auto sizes = FileSize::sizes(measured);
    const std::set<std::string> running = AppInventory::runningBundleIDs();

    nlohmann::json report = nlohmann::json::array();
    for (const InstalledApp& app : apps) {
        const std::int64_t bytes = app.installedSize ? *app.installedSize : sizes.at(app.url);
        const auto blocker = app.uninstallBlocker(running, ownBundleIDs);
        const std::optional<std::string> lastUsed =
            app.lastUsed ? std::optional(isoDate(*app.lastUsed)) : std::nullopt;
        if (!arguments.has("json")) {
            out << rawValue(app.kind) << '\t' << bytes << '\t' << app.name << '\t'
                << app.bundleID.value_or("-") << '\t' << app.version.value_or("-") << '\t'
                << lastUsed.value_or("-") << '\t' << (blocker ? rawValue(*blocker) : "-") << '\t'
                << app.url.path() << '\n';
            continue;
        }
        report.push_back({{"kind", rawValue(app.kind)},
                          {"name", app.name},
                          {"id", optionalText(app.bundleID)},
                          {"version", optionalText(app.version)},
                          {"path", app.url.path()},
                          {"allocatedBytes", bytes},
                          {"lastUsed", optionalText(lastUsed)},
                          {"blocker", blocker ? nlohmann::json(rawValue(*blocker)) : nlohmann::json()}});
    }
    if (arguments.has("json"))
        out << report.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
    return 0;
}

} // namespace ZephraneCli
