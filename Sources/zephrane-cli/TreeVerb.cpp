#include "Arguments.hpp"
#include "Cli.hpp"
#include "DiskTreeJson.hpp"
#include "MessageLocale.hpp"

#include "CleanerCore/DiskTree/DiskTreeScanner.hpp"
#include "CleanerCore/Display/ByteDisplay.hpp"
#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <iostream>
#include <mutex>
#include <string>
#include <unistd.h>

namespace ZephraneCli {
namespace {

using CleanerCore::DiskNode;

// Levels below the root that the text report shows.
constexpr int textLevels = 2;

void printText(const DiskNode& node, int level, const std::string& locale, std::ostream& out) {
    out << std::string(static_cast<std::size_t>(level) * 2, ' ')
        << CleanerCore::ByteDisplay(node.size(), locale).formatted << "  "
        << (level == 0 ? node.path() : std::string(node.name()));
    if (node.isDirectory())
        out << "/  (" << node.itemCount() << (node.itemCount() == 1 ? " item)" : " items)");
    out << '\n';
    if (level < textLevels)
        for (const DiskNode::Pointer& child : node.children())
            printText(*child, level + 1, locale, out);
}

// One line on a terminal, rewritten in place; several scan threads may report at once.
class TerminalProgress {
public:
    explicit TerminalProgress(std::ostream& err) : err(err) {}
    void operator()(std::int64_t count, const std::optional<std::string>& folder) {
        const std::lock_guard lock(mutex);
        std::string shown = folder.value_or("");
        if (shown.size() > 60)
            shown = "…" + shown.substr(shown.size() - 59);
        err << "\r\033[K" << count << " items  " << shown << std::flush;
    }
    ~TerminalProgress() { err << "\r\033[K" << std::flush; }

private:
    std::ostream& err;
    std::mutex mutex;
};

} // namespace

// The size tree of one folder: as JSON, or as text down to two levels below it. A folder that
// can't be read is reported on stderr and comes out as an empty tree, as the engine gives it.
int runTree(const std::vector<std::string>& words, std::ostream& out, std::ostream& err) {
    const Arguments arguments = Arguments::parse(words, {"json"}, {"min-node-size", "keep"});
    if (arguments.positionals().size() != 1)
        throw UsageError("needs exactly one PATH");
    const CleanerCore::DiskTreeScanner scanner{arguments.positionals().front(),
                                               arguments.number("min-node-size", 1000000),
                                               arguments.number("keep", 12)};

    {
        const CleanerCore::Platform::FileDescriptor probe(
            CleanerCore::Platform::openDirectory(AT_FDCWD, scanner.root.c_str()));
        if (!probe)
            err << "zephrane-cli tree: cannot read '" << scanner.root << "': " << std::strerror(errno)
                << "\n";
    }

    DiskNode::Pointer tree;
    if (&err == &std::cerr && ::isatty(STDERR_FILENO)) {
        TerminalProgress progress(err);
        tree = scanner.scan(CleanerCore::DiskTreeScanner::Reporting(std::ref(progress)));
    } else {
        tree = scanner.scan(CleanerCore::DiskTreeScanner::Reporting{});
    }

    if (arguments.has("json"))
        DiskTreeJson(out).write(*tree);
    else
        printText(*tree, 0, messageLocale(), out);
    return 0;
}

} // namespace ZephraneCli
