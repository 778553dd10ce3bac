#include "Arguments.hpp"
#include "Cli.hpp"

#include "CleanerCore/Platform/MountTable.hpp"
#include "CleanerCore/Trash/TrashBin.hpp"

#include <fmt/chrono.h>
#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <cstdlib>
#include <ostream>
#include <unistd.h>

namespace ZephraneCli {
namespace {

// UTC, to the second: "2026-11-23T08:22:28Z".
std::string isoDate(std::chrono::system_clock::time_point when) {
    return fmt::format("{:%Y-%m-%dT%H:%M:%SZ}", fmt::gmtime(std::chrono::system_clock::to_time_t(when)));
}

} // namespace

// Every trash of the user: the home trash, then each mounted volume's. Text: one
// "BYTES<TAB>PATH<TAB>VOLUME" line per bin ("-" for bytes when it can't be read), then its items as
// indented "BYTES<TAB>DATE<TAB>PATH" lines, largest first ("-" for an unknown date).
int runTrash(const std::vector<std::string>& words, const Streams& streams) {
    std::ostream& out = streams.out;
    std::ostream& err = streams.err;
    const Arguments arguments = Arguments::parse(words, {"json"}, {});
    if (!arguments.positionals().empty())
        throw UsageError("trash takes no path; it reads the user's trash folders");
    const char* home = std::getenv("HOME");
    if (home == nullptr || *home == '\0') {
        err << "zephrane-cli trash: HOME is not set\n";
        return 1;
    }

    std::vector<CleanerCore::TrashBin> bins{CleanerCore::TrashBin(CleanerCore::URL::file(home))};
    for (CleanerCore::TrashBin& bin :
         CleanerCore::TrashBin::otherVolumes(CleanerCore::Platform::MountTable::current(), ::getuid()))
        bins.push_back(std::move(bin));

    nlohmann::json report = nlohmann::json::array();
    for (const CleanerCore::TrashBin& bin : bins) {
        const auto entries = bin.entries();
        std::int64_t total = 0;
        for (const CleanerCore::TrashEntry& entry : entries.value_or(std::vector<CleanerCore::TrashEntry>{}))
            total += entry.size;
        const std::string volume = bin.volumeURL().path();
        if (!arguments.has("json")) {
            out << (entries ? std::to_string(total) : "-") << '\t' << bin.url.path() << '\t' << volume
                << '\n';
            for (const CleanerCore::TrashEntry& entry :
                 entries.value_or(std::vector<CleanerCore::TrashEntry>{}))
                out << "  " << entry.size << '\t' << (entry.dateAdded ? isoDate(*entry.dateAdded) : "-")
                    << '\t' << entry.url.path() << '\n';
            continue;
        }
        nlohmann::json items = nlohmann::json::array();
        for (const CleanerCore::TrashEntry& entry : entries.value_or(std::vector<CleanerCore::TrashEntry>{}))
            items.push_back({{"path", entry.url.path()},
                             {"allocatedBytes", entry.size},
                             {"dateAdded", entry.dateAdded ? nlohmann::json(isoDate(*entry.dateAdded))
                                                           : nlohmann::json()}});
        report.push_back({{"path", bin.url.path()},
                          {"volume", volume},
                          {"volumeName", bin.volumeName()},
                          {"readable", entries.has_value()},
                          {"totalBytes", entries ? nlohmann::json(total) : nlohmann::json()},
                          {"items", std::move(items)}});
    }
    if (arguments.has("json"))
        out << report.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
    return 0;
}

} // namespace ZephraneCli
