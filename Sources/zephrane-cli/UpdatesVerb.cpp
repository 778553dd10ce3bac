#include "Arguments.hpp"
#include "Cli.hpp"
#include "MessageLocale.hpp"
#include "TerminalText.hpp"

#include "CleanerCore/Apps/AppInventory.hpp"
#include "CleanerCore/Updates/AppUpdateFinder.hpp"
#include "CleanerCore/Updates/CurlUpdateFetcher.hpp"

#include <nlohmann/json.hpp>

#include <cstdlib>
#include <ostream>

namespace ZephraneCli {

namespace {

// "pt_BR.UTF-8@euro" gives "pt-BR".
std::string languageTag(std::string_view locale) {
    std::string tag(locale.substr(0, locale.find_first_of(".@")));
    std::replace(tag.begin(), tag.end(), '_', '-');
    return tag;
}

std::string region(std::string_view locale) {
    const std::string tag = languageTag(locale);
    const std::size_t dash = tag.find('-');
    return dash == std::string::npos ? "us" : tag.substr(dash + 1);
}

// LANGUAGE's list first (as gettext reads it), then the message locale.
std::vector<std::string> preferredLanguages() {
    std::vector<std::string> languages;
    if (const char* list = std::getenv("LANGUAGE"); list != nullptr) {
        std::string_view rest = list;
        while (!rest.empty()) {
            const std::size_t colon = rest.find(':');
            if (const std::string tag = languageTag(rest.substr(0, colon)); !tag.empty())
                languages.push_back(tag);
            rest = colon == std::string_view::npos ? std::string_view{} : rest.substr(colon + 1);
        }
    }
    languages.push_back(languageTag(messageLocale()));
    return languages;
}

nlohmann::json optionalText(const std::optional<std::string>& text) {
    return text ? nlohmann::json(*text) : nlohmann::json();
}

nlohmann::json optionalURL(const std::optional<CleanerCore::URL>& url) {
    return url ? nlohmann::json(url->absoluteString()) : nlohmann::json();
}

} // namespace

// What each source offers for the installed apps. Text: one line per update,
// "SOURCE<TAB>NAME<TAB>ID<TAB>CURRENT<TAB>NEW<TAB>PATH", "-" where unknown. With --offline only
// caches and local data are read.
int runUpdates(const std::vector<std::string>& words, const Streams& streams) {
    const Arguments arguments = Arguments::parse(words, {"json", "offline"}, {});
    if (!arguments.positionals().empty())
        throw UsageError("updates takes no path; it checks the installed applications");
    const char* home = std::getenv("HOME");
    if (home == nullptr || *home == '\0') {
        streams.err << "zephrane-cli updates: HOME is not set\n";
        return 1;
    }

    using namespace CleanerCore;
    const auto apps = AppInventory::installedApps(AppInventory::defaultFolders(),
                                                  AppInventory::Sources::forHome(URL::file(home)));
    const CurlUpdateFetcher fetcher(std::chrono::seconds(20), std::size_t{64} << 20);
    AppUpdateFinder::Settings settings;
    settings.region = region(messageLocale());
    settings.preferredLanguages = preferredLanguages();
    settings.offline = arguments.has("offline");
    if (streams.errIsTerminal)
        streams.err << "Checking " << apps.size() << " applications for updates…" << std::flush;
    const auto updates = AppUpdateFinder(fetcher, settings).updates(apps);
    if (streams.errIsTerminal)
        streams.err << "\r\033[K" << std::flush;

    if (!arguments.has("json")) {
        for (const AppUpdate& update : updates) {
            std::string line;
            line += rawValue(update.source);
            line += '\t';
            appendShown(line, update.name, streams.outIsTerminal);
            line += '\t';
            appendShown(line, update.bundleID.value_or("-"), streams.outIsTerminal);
            line += '\t';
            appendShown(line, update.currentVersion.empty() ? "-" : update.currentVersion, streams.outIsTerminal);
            line += '\t';
            appendShown(line, update.newVersion, streams.outIsTerminal);
            line += '\t';
            appendShown(line, update.appURL.path(), streams.outIsTerminal);
            streams.out << line << '\n';
        }
        return 0;
    }
    nlohmann::json report = nlohmann::json::array();
    for (const AppUpdate& update : updates)
        report.push_back({{"source", rawValue(update.source)},
                          {"name", update.name},
                          {"id", optionalText(update.bundleID)},
                          {"path", update.appURL.path()},
                          {"currentVersion", update.currentVersion},
                          {"newVersion", update.newVersion},
                          {"newBuild", optionalText(update.newBuild)},
                          {"notesSummary", optionalText(update.notesSummary())},
                          {"notesURL", optionalURL(update.notesURL)},
                          {"downloadURL", optionalURL(update.downloadURL)},
                          {"storeURL", optionalURL(update.storeURL)},
                          {"brewCommand", optionalText(update.brewCommand())},
                          {"canInstallDownload", update.canInstallDownload()}});
    streams.out << report.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
    return 0;
}

} // namespace ZephraneCli
