#include "Cli.hpp"

#include "Arguments.hpp"

#include <cerrno>
#include <cstring>
#include <exception>
#include <ostream>

namespace ZephraneCli {
namespace {

void printHelp(std::ostream& out) {
    out << "zephrane-cli " << ZEPHRANE_VERSION << " - read-only reports of what takes up the disk\n\n"
        << "Usage: zephrane-cli VERB [ARGUMENTS...]\n"
        << "       zephrane-cli --help | --version\n\n"
        << "Verbs:\n";
    for (const Verb& verb : verbs())
        out << "  " << verb.usage << "\n      " << verb.summary << "\n";
    out << "\nWhat a size counts:\n"
        << "  the blocks allocated to regular files (a sparse file counts what it occupies), once for\n"
        << "  each name: hard links are counted once per link, not once per file. Folders' own blocks,\n"
        << "  symbolic links, devices, pipes and sockets count nothing; names starting with \"._\" are\n"
        << "  passed over inside folders. Links are never followed, however the path is written\n"
        << "  (\"link/\" is the link), and walks stay on the folder's file system in tree. So sizes\n"
        << "  are often below what du shows, which counts folders and each hard-linked file once.\n"
        << "\nNames in JSON:\n"
        << "  names and paths are JSON strings; one that is not UTF-8 has U+FFFD in place of the\n"
        << "  bytes that are not, and a second field beside it, \"nameBytes\" or \"pathBytes\", with its\n"
        << "  exact bytes in base64. In tree, only the root has its path; nested nodes have names.\n"
        << "  Text output to a terminal shows control characters escaped (\\n, \\e, \\xHH).\n"
        << "\nNothing here removes anything; removal happens only in the application.\n"
        << "Exit status: 0 on success; 1 when a path or a folder below it could not be read (the\n"
        << "rest is still reported) or the output could not be written; 2 on bad usage.\n";
}

// The report, written whole, or one line saying it could not be.
int finished(int status, const Verb& verb, const Streams& streams) {
    errno = 0;
    streams.out.flush();
    if (streams.out)
        return status;
    const int error = errno;
    streams.err << "zephrane-cli " << verb.name << ": cannot write the report"
                << (error ? std::string(": ") + std::strerror(error) : std::string()) << "\n";
    return 1;
}

} // namespace

int run(const std::vector<std::string>& arguments, const Streams& streams) {
    if (arguments.empty()) {
        streams.err << "zephrane-cli: no verb given (try --help)\n";
        return 2;
    }
    const std::string& first = arguments.front();
    if (first == "--help" || first == "-h" || first == "help") {
        printHelp(streams.out);
        return finished(0, {"help", "", "", nullptr}, streams);
    }
    if (first == "--version") {
        streams.out << "zephrane-cli " << ZEPHRANE_VERSION << "\n";
        return finished(0, {"version", "", "", nullptr}, streams);
    }
    for (const Verb& verb : verbs()) {
        if (verb.name != first)
            continue;
        const std::vector<std::string> rest(arguments.begin() + 1, arguments.end());
        try {
            return finished(verb.run(rest, streams), verb, streams);
        } catch (const UsageError& error) {
            streams.err << "zephrane-cli " << verb.name << ": " << error.what() << " (usage: zephrane-cli "
                        << verb.usage << ")\n";
            return 2;
        } catch (const std::exception& error) {
            streams.err << "zephrane-cli " << verb.name << ": " << error.what() << "\n";
            return 1;
        }
    }
    streams.err << "zephrane-cli: unknown verb '" << first << "' (try --help)\n";
    return 2;
}

int run(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    return run(arguments, Streams{out, err});
}

} // namespace ZephraneCli
