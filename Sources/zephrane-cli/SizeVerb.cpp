#include "Arguments.hpp"
#include "Cli.hpp"

#include "CleanerCore/Files/FileSize.hpp"

#include <nlohmann/json.hpp>

#include <ostream>
#include <sys/stat.h>

namespace ZephraneCli {

// Allocated bytes of each path, in the order given: "BYTES<TAB>PATH" lines, or one JSON array.
// A path that does not exist measures 0 and makes the status 1.
int runSize(const std::vector<std::string>& words, std::ostream& out, std::ostream& err) {
    const Arguments arguments = Arguments::parse(words, {"json"}, {});
    const std::vector<std::string>& paths = arguments.positionals();
    if (paths.empty())
        throw UsageError("no path given");

    std::vector<CleanerCore::URL> urls;
    for (const std::string& path : paths)
        urls.push_back(CleanerCore::URL::file(path));
    const auto sizes = CleanerCore::FileSize::sizes(urls);

    int status = 0;
    nlohmann::json report = nlohmann::json::array();
    for (std::size_t i = 0; i < paths.size(); ++i) {
        struct stat info {};
        if (::lstat(paths[i].c_str(), &info) != 0) {
            err << "zephrane-cli size: cannot measure '" << paths[i] << "': no such file or folder\n";
            status = 1;
        }
        const std::int64_t bytes = sizes.at(urls[i]);
        if (arguments.has("json"))
            report.push_back({{"path", paths[i]}, {"allocatedBytes", bytes}});
        else
            out << bytes << '\t' << paths[i] << '\n';
    }
    if (arguments.has("json"))
        out << report.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
    return status;
}

} // namespace ZephraneCli
