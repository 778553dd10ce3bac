#include "Cli.hpp"

#include "Arguments.hpp"

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
    out << "\nNothing here removes anything; removal happens only in the application.\n"
        << "Exit status: 0 on success, 1 when a report could not be made, 2 on bad usage.\n";
}

} // namespace

int run(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
    if (arguments.empty()) {
        err << "zephrane-cli: no verb given (try --help)\n";
        return 2;
    }
    const std::string& first = arguments.front();
    if (first == "--help" || first == "-h" || first == "help") {
        printHelp(out);
        return 0;
    }
    if (first == "--version") {
        out << "zephrane-cli " << ZEPHRANE_VERSION << "\n";
        return 0;
    }
    for (const Verb& verb : verbs()) {
        if (verb.name != first)
            continue;
        const std::vector<std::string> rest(arguments.begin() + 1, arguments.end());
        try {
            return verb.run(rest, out, err);
        } catch (const UsageError& error) {
            err << "zephrane-cli " << verb.name << ": " << error.what() << " (usage: zephrane-cli "
                << verb.usage << ")\n";
            return 2;
        } catch (const std::exception& error) {
            err << "zephrane-cli " << verb.name << ": " << error.what() << "\n";
            return 1;
        }
    }
    err << "zephrane-cli: unknown verb '" << first << "' (try --help)\n";
    return 2;
}

} // namespace ZephraneCli
