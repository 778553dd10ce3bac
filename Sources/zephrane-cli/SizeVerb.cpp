#include "Arguments.hpp"
#include "Cli.hpp"
#include "JsonText.hpp"
#include "PathProblem.hpp"
#include "TerminalText.hpp"

#include "CleanerCore/Files/FileSize.hpp"

#include <nlohmann/json.hpp>

#include <cstring>
#include <ostream>

namespace ZephraneCli {

// Allocated bytes of each path, in the order given: "BYTES<TAB>PATH" lines, or one JSON array of
// {path, allocatedBytes, unreadable}. A path that can't be read is one line on stderr and is left
// out of the report; folders below a path that can't be read are counted and reported on stderr;
// either makes the status 1.
int runSize(const std::vector<std::string>& words, const Streams& streams) {
    const Arguments arguments = Arguments::parse(words, {"json"}, {});
    const std::vector<std::string>& paths = arguments.positionals();
    if (paths.empty())
        throw UsageError("no path given");
    for (const std::string& path : paths)
        if (path.empty())
            throw UsageError("a path is empty");

    const bool json = arguments.has("json");
    int status = 0;
    nlohmann::json report = nlohmann::json::array();
    std::string line;
    for (const std::string& path : paths) {
        const CleanerCore::FileSize::Measurement measured =
            CleanerCore::FileSize::measure(CleanerCore::URL::file(path));
        if (measured.error != 0) {
            streams.err << "zephrane-cli size: cannot measure '" << escapedForTerminal(path)
                        << "': " << std::strerror(measured.error) << "\n";
            status = 1;
            continue;
        }
        if (measured.unreadableFolders > 0) {
            streams.err << "zephrane-cli size: " << unreadableMessage(measured.unreadableFolders, path) << "\n";
            status = 1;
        }
        if (json) {
            nlohmann::json entry{{"path", path},
                                 {"allocatedBytes", measured.bytes},
                                 {"unreadable", measured.unreadableFolders}};
            if (auto bytes = JsonText::exactBytes(path))
                entry["pathBytes"] = *bytes;
            report.push_back(std::move(entry));
        } else {
            line = std::to_string(measured.bytes);
            line += '\t';
            appendShown(line, path, streams.outIsTerminal);
            line += '\n';
            streams.out << line;
        }
    }
    if (json)
        streams.out << report.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
    return status;
}

} // namespace ZephraneCli
