#include "Arguments.hpp"
#include "Cli.hpp"
#include "JsonText.hpp"
#include "TerminalText.hpp"

#include "CleanerCore/Junk/JunkScanner.hpp"
#include "CleanerCore/Platform/RunningApplications.hpp"

#include <nlohmann/json.hpp>

#include <cstdlib>
#include <filesystem>
#include <ostream>

namespace ZephraneCli {

// The junk of the user's home, rule by rule. Text: one "BYTES<TAB>ID<TAB>TITLE" line per rule, then
// its items as indented "BYTES<TAB>PATH" lines, with "<TAB>(note)" and "<TAB>[off]" where they apply.
int runJunk(const std::vector<std::string>& words, const Streams& streams) {
    std::ostream& out = streams.out;
    const Arguments arguments = Arguments::parse(words, {"json"}, {});
    if (!arguments.positionals().empty())
        throw UsageError("junk takes no path; it reads the home folder");
    const char* home = std::getenv("HOME");
    if (home == nullptr || *home == '\0') {
        streams.err << "zephrane-cli junk: HOME is not set\n";
        return 1;
    }
    std::error_code error;
    if (!std::filesystem::is_directory(home, error)) {
        streams.err << "zephrane-cli junk: the home folder '" << escapedForTerminal(home) << "' (HOME) "
                    << (error ? "cannot be read: " + error.message() : std::string("is not a folder")) << "\n";
        return 1;
    }

    const CleanerCore::JunkScanner scanner{CleanerCore::URL::file(home), CleanerCore::JunkRule::defaults()};
    const auto groups = scanner.scan(CleanerCore::Platform::runningBundleIdentifiers());

    if (!arguments.has("json")) {
        for (const CleanerCore::JunkGroup& group : groups) {
            out << group.totalSize() << '\t' << group.id() << '\t' << group.rule.title << '\n';
            for (const CleanerCore::CleanupItem& item : group.items) {
                out << "  " << item.size << '\t';
                std::string shown;
                appendShown(shown, item.url.path(), streams.outIsTerminal);
                out << shown;
                if (item.note)
                    out << "\t(" << *item.note << ')';
                if (!item.selectedByDefault)
                    out << "\t[off]";
                out << '\n';
            }
        }
        return 0;
    }
    nlohmann::json report = nlohmann::json::array();
    for (const CleanerCore::JunkGroup& group : groups) {
        nlohmann::json items = nlohmann::json::array();
        for (const CleanerCore::CleanupItem& item : group.items) {
            nlohmann::json entry{{"path", item.url.path()},
                                 {"allocatedBytes", item.size},
                                 {"note", item.note ? nlohmann::json(*item.note) : nlohmann::json()},
                                 {"selectedByDefault", item.selectedByDefault}};
            if (auto bytes = JsonText::exactBytes(item.url.path()))
                entry["pathBytes"] = *bytes;
            items.push_back(std::move(entry));
        }
        report.push_back({{"id", group.id()},
                          {"title", group.rule.title},
                          {"totalBytes", group.totalSize()},
                          {"items", std::move(items)}});
    }
    out << report.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
    return 0;
}

} // namespace ZephraneCli
