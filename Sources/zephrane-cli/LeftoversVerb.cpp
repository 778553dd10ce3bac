#include "Arguments.hpp"
#include "Cli.hpp"

#include "CleanerCore/Apps/AppInventory.hpp"
#include "CleanerCore/Apps/BundleIDMatcher.hpp"
#include "CleanerCore/Apps/LeftoverFinder.hpp"
#include "CleanerCore/Files/FileSize.hpp"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdlib>
#include <ostream>

namespace ZephraneCli {

namespace {

using namespace CleanerCore;

// The orphans of the home: "TOTAL<TAB>GROUP" lines, each followed by its "  BYTES<TAB>PATH" items.
int reportOrphans(const LeftoverFinder& finder, const AppInventory::Sources& sources, bool json,
                  std::ostream& out) {
    const auto groups =
        finder.orphans(AppInventory::allKnownBundleIDs(AppInventory::knownBundleRoots(), sources));
    nlohmann::json report = nlohmann::json::array();
    for (const OrphanGroup& group : groups) {
        if (!json) {
            out << group.totalSize() << '\t' << group.bundleID << '\n';
            for (const CleanupItem& item : group.items)
                out << "  " << item.size << '\t' << item.url.path() << '\n';
            continue;
        }
        nlohmann::json items = nlohmann::json::array();
        for (const CleanupItem& item : group.items)
            items.push_back({{"path", item.url.path()}, {"allocatedBytes", item.size}});
        report.push_back(
            {{"id", group.bundleID}, {"totalBytes", group.totalSize()}, {"items", std::move(items)}});
    }
    if (json)
        out << report.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
    return 0;
}

// One installed app's leftovers: "BYTES<TAB>KIND<TAB>PATH" lines, with "<TAB>(note)" for a caution.
int reportApp(const LeftoverFinder& finder, const AppInventory::Sources& sources, const std::string& id,
              bool json, std::ostream& out, std::ostream& err) {
    const auto apps = AppInventory::installedApps(AppInventory::defaultFolders(), sources);
    const std::string wanted = BundleIDMatcher::lowercased(id);
    const auto app = std::find_if(apps.begin(), apps.end(), [&wanted](const InstalledApp& each) {
        return each.bundleID && BundleIDMatcher::lowercased(*each.bundleID) == wanted;
    });
    if (app == apps.end()) {
        err << "zephrane-cli leftovers: no installed application has the id '" << id << "'\n";
        return 1;
    }
    std::unordered_set<std::string> others;
    for (const InstalledApp& each : apps)
        if (each.bundleID)
            others.insert(BundleIDMatcher::lowercased(*each.bundleID));
    const auto leftovers = finder.appLeftovers(*app, others);
    std::vector<URL> urls;
    for (const AppLeftover& leftover : leftovers)
        urls.push_back(leftover.url);
    const auto sizes = FileSize::sizes(urls);

    nlohmann::json items = nlohmann::json::array();
    std::int64_t total = 0;
    for (const AppLeftover& leftover : leftovers) {
        const std::int64_t bytes = sizes.at(leftover.url);
        total += bytes;
        if (!json) {
            out << bytes << '\t' << rawValue(leftover.kind) << '\t' << leftover.url.path();
            if (leftover.caution)
                out << "\t(" << note(*leftover.caution) << ')';
            out << '\n';
            continue;
        }
        items.push_back(
            {{"path", leftover.url.path()},
             {"kind", rawValue(leftover.kind)},
             {"caution", leftover.caution ? nlohmann::json(rawValue(*leftover.caution)) : nlohmann::json()},
             {"allocatedBytes", bytes}});
    }
    if (json)
        out << nlohmann::json{{"id", *app->bundleID},
                              {"name", app->name},
                              {"path", app->url.path()},
                              {"totalBytes", total},
                              {"leftovers", std::move(items)}}
                   .dump(2, ' ', false, nlohmann::json::error_handler_t::replace)
            << '\n';
    return 0;
}

} // namespace

// What applications left behind in the home: the groups of nobody's files, or with --app ID what
// goes with that installed application. Only the user's own folders are searched.
int runLeftovers(const std::vector<std::string>& words, const Streams& streams) {
    std::ostream& out = streams.out;
    std::ostream& err = streams.err;
    const Arguments arguments = Arguments::parse(words, {"json"}, {"app"});
    if (!arguments.positionals().empty())
        throw UsageError("leftovers takes no path; it reads the home folder");
    const auto id = arguments.value("app");
    if (id && id->empty())
        throw UsageError("--app needs an application id");
    const char* home = std::getenv("HOME");
    if (home == nullptr || *home == '\0') {
        err << "zephrane-cli leftovers: HOME is not set\n";
        return 1;
    }
    const URL homeURL = URL::file(home);
    const LeftoverFinder finder(homeURL, std::nullopt);
    const auto sources = AppInventory::Sources::forHome(homeURL);
    if (id)
        return reportApp(finder, sources, *id, arguments.has("json"), out, err);
    return reportOrphans(finder, sources, arguments.has("json"), out);
}

} // namespace ZephraneCli
