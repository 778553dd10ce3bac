#include "Arguments.hpp"
#include "Cli.hpp"
#include "DiskTreeJson.hpp"
#include "MessageLocale.hpp"
#include "PathProblem.hpp"
#include "TerminalText.hpp"

#include "CleanerCore/DiskTree/DiskTreeScanner.hpp"
#include "CleanerCore/Display/ByteFormatter.hpp"
#include "CleanerCore/Files/UnreadableFolders.hpp"
#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"

#include <cerrno>
#include <charconv>
#include <fcntl.h>
#include <mutex>
#include <ostream>
#include <string>

namespace ZephraneCli {
namespace {

using CleanerCore::DiskNode;

// Levels below the root that the text report shows.
constexpr int textLevels = 2;
constexpr std::size_t flushAt = 256 * 1024;

// The text report: one line per node down to two levels below the root, "SIZE  NAME" with "/" and
// the item count after a folder. Formatters are built once; every number comes from the tree.
class TextReport {
public:
    TextReport(std::ostream& out, const std::string& locale, bool escape)
        : out(out), bytes(locale), escape(escape) {}

    void write(const DiskNode& node, int level) {
        line.assign(static_cast<std::size_t>(level) * 2, ' ');
        line += bytes.formatted(node.size());
        line += "  ";
        if (level == 0)
            appendShown(line, node.path(), escape);
        else
            appendShown(line, node.name(), escape);
        if (node.isDirectory()) {
            line += "/  (";
            char digits[24];
            line.append(digits, std::to_chars(digits, digits + sizeof digits, node.itemCount()).ptr);
            line += node.itemCount() == 1 ? " item)" : " items)";
        }
        line += '\n';
        buffer += line;
        if (buffer.size() >= flushAt) {
            out.write(buffer.data(), static_cast<std::streamsize>(buffer.size()));
            buffer.clear();
        }
        if (level < textLevels)
            for (const DiskNode::Pointer& child : node.children())
                write(*child, level + 1);
    }

    ~TextReport() { out.write(buffer.data(), static_cast<std::streamsize>(buffer.size())); }

private:
    std::ostream& out;
    const CleanerCore::ByteFormatter bytes;
    const bool escape;
    std::string line, buffer;
};

// One line on a terminal, rewritten in place; several scan threads may report at once.
class TerminalProgress {
public:
    explicit TerminalProgress(std::ostream& err) : err(err) {}
    void operator()(std::int64_t count, const std::optional<std::string>& folder) {
        const std::lock_guard lock(mutex);
        std::string shown = escapedForTerminal(folder.value_or(""));
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

// The size tree of one folder: as JSON, or as text down to two levels below it. A root that can't
// be read is one line on stderr and status 1; folders below it that can't be read are counted,
// reported on one line, and make the status 1, the tree of the rest still printed.
int runTree(const std::vector<std::string>& words, const Streams& streams) {
    const Arguments arguments = Arguments::parse(words, {"json"}, {"min-node-size", "keep"});
    if (arguments.positionals().size() != 1)
        throw UsageError("needs exactly one PATH");
    const std::string& root = arguments.positionals().front();
    if (root.empty())
        throw UsageError("the path is empty");
    const CleanerCore::DiskTreeScanner scanner{root, arguments.number("min-node-size", 1000000),
                                               arguments.number("keep", 12)};
    {
        const CleanerCore::Platform::FileDescriptor probe(CleanerCore::Platform::openDirectory(
            AT_FDCWD, CleanerCore::standardizedPath(root).c_str()));
        if (!probe) {
            streams.err << "zephrane-cli tree: cannot read '" << escapedForTerminal(root)
                        << "': " << pathProblem(root, errno) << "\n";
            return 1;
        }
    }

    CleanerCore::UnreadableFolders unreadable;
    DiskNode::Pointer tree;
    if (streams.errIsTerminal) {
        TerminalProgress progress(streams.err);
        tree = scanner.scan(CleanerCore::DiskTreeScanner::Reporting(std::ref(progress)), {}, &unreadable);
    } else {
        tree = scanner.scan(CleanerCore::DiskTreeScanner::Reporting{}, {}, &unreadable);
    }

    if (arguments.has("json"))
        DiskTreeJson(streams.out).write(*tree, unreadable.total());
    else
        TextReport(streams.out, messageLocale(), streams.outIsTerminal).write(*tree, 0);
    if (unreadable.total() == 0)
        return 0;
    streams.err << "zephrane-cli tree: " << unreadableMessage(unreadable.total(), root) << "\n";
    return 1;
}

} // namespace ZephraneCli
