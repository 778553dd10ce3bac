#include "Arguments.hpp"
#include "Cli.hpp"
#include "MessageLocale.hpp"

#include "CleanerCore/LargeFiles/LargeFileFilter.hpp"
#include "CleanerCore/LargeFiles/LargeFileScanner.hpp"
#include "CleanerCore/LargeFiles/LargeFileSort.hpp"
#include "CleanerCore/LargeFiles/SizeOption.hpp"
#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"

#include <fmt/chrono.h>
#include <fmt/format.h>
#include <nlohmann/json.hpp>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <iostream>
#include <unistd.h>

namespace ZephraneCli {
namespace {

using namespace CleanerCore;

LargeFileAge parseAge(const std::string& text) {
    if (text == "any")
        return LargeFileAge::any;
    if (text == "3m")
        return LargeFileAge::threeMonths;
    if (text == "6m")
        return LargeFileAge::sixMonths;
    if (text == "1y")
        return LargeFileAge::oneYear;
    throw UsageError("--age takes any, 3m, 6m or 1y, not '" + text + "'");
}

std::set<FileKind> parseKind(const std::optional<std::string>& text) {
    if (!text)
        return {};
    if (const auto kind = fromRaw<FileKind>(*text))
        return {*kind};
    std::string known;
    for (FileKind kind : allFileKinds)
        known += (known.empty() ? "" : ", ") + std::string(rawValue(kind));
    throw UsageError("--kind takes one of " + known + ", not '" + *text + "'");
}

LargeFileSort parseSort(const std::optional<std::string>& text) {
    if (!text)
        return LargeFileSort::size;
    if (const auto sort = fromRaw<LargeFileSort>(*text))
        return *sort;
    throw UsageError("--sort takes size, lastUsed or name, not '" + *text + "'");
}

// "2026-11-23T08:16:41Z", the moment in UTC to the second.
std::string isoDate(LargeFile::Clock::time_point when) {
    return fmt::format("{:%FT%TZ}", std::chrono::floor<std::chrono::seconds>(when));
}

// The area being walked and the count so far, on one terminal line rewritten in place.
class TerminalProgress {
public:
    explicit TerminalProgress(std::ostream& err) : err(err) {}
    void operator()(const LargeFileScanEvent& event) {
        if (const auto* entered = event.as<LargeFileScanEvent::Entered>())
            area = entered->area.lastPathComponent();
        else if (const auto* visited = event.as<LargeFileScanEvent::Visited>())
            count = visited->count;
        else
            ++found;
        err << "\r\033[K" << count << " items, " << found << " found  " << area.substr(0, 40) << std::flush;
    }
    ~TerminalProgress() { err << "\r\033[K" << std::flush; }

private:
    std::ostream& err;
    std::string area;
    std::int64_t count = 0, found = 0;
};

} // namespace

// The large files below a folder (the home by default), filtered and sorted. Text: one
// "BYTES<TAB>KIND<TAB>LAST_USED<TAB>PATH" line per file, LAST_USED in UTC or "-" when unknown.
int runLarge(const std::vector<std::string>& words, const Streams& streams) {
    std::ostream& out = streams.out;
    std::ostream& err = streams.err;
    const Arguments arguments = Arguments::parse(words, {"json"}, {"min", "age", "kind", "sort"});
    if (arguments.positionals().size() > 1)
        throw UsageError("takes at most one FOLDER");
    const char* homeVariable = std::getenv("HOME");
    const std::string home = homeVariable ? homeVariable : "";
    const std::string folder = arguments.positionals().empty() ? home : arguments.positionals().front();
    if (folder.empty())
        throw UsageError("no FOLDER given and HOME is not set");

    LargeFileFilter filter;
    filter.minimumSize = arguments.number("min", SizeOption::scanFloor);
    filter.age = parseAge(arguments.value("age").value_or("any"));
    filter.kinds = parseKind(arguments.value("kind"));
    const LargeFileSort sort = parseSort(arguments.value("sort"));

    {
        const Platform::FileDescriptor probe(Platform::openDirectory(AT_FDCWD, folder.c_str()));
        if (!probe)
            throw UsageError("cannot read folder '" + folder + "': " + std::strerror(errno));
    }

    LargeFileScanner scanner = LargeFileScanner::forHome(URL::file(folder), filter.minimumSize);
    if (!home.empty())
        scanner.home = URL::file(home);
    std::vector<LargeFile> files;
    if (&err == &std::cerr && ::isatty(STDERR_FILENO)) {
        TerminalProgress progress(err);
        files = scanner.scan(LargeFileScanner::Events(std::ref(progress)));
    } else {
        files = scanner.scan(LargeFileScanner::Events{});
    }
    const auto calendar = currentCalendar();
    const std::string locale = messageLocale();
    files = sorted(sort, filter.apply(files, LargeFile::Clock::now(), *calendar), locale);

    if (!arguments.has("json")) {
        for (const LargeFile& file : files)
            out << file.size << '\t' << rawValue(file.kind) << '\t'
                << (file.lastUsed ? isoDate(*file.lastUsed) : "-") << '\t' << file.url.path() << '\n';
        return 0;
    }
    nlohmann::json report = nlohmann::json::array();
    for (const LargeFile& file : files)
        report.push_back(
            {{"path", file.url.path()},
             {"allocatedBytes", file.size},
             {"kind", rawValue(file.kind)},
             {"kindTitle", file.kindTitle(locale)},
             {"lastUsed", file.lastUsed ? nlohmann::json(isoDate(*file.lastUsed)) : nlohmann::json()}});
    out << report.dump(2, ' ', false, nlohmann::json::error_handler_t::replace) << '\n';
    return 0;
}

} // namespace ZephraneCli
