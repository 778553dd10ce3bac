#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace ZephraneCli {

class Arguments;

// Where a verb writes: its report to `out`, one line per problem to `err`. Names shown as text to a
// terminal are escaped (see TerminalText); messages on `err` always are.
struct Streams {
    std::ostream& out;
    std::ostream& err;
    bool outIsTerminal = false;
    bool errIsTerminal = false;
};

// One verb of the command line. `run` gets the words after the verb and returns the exit status;
// it throws UsageError for bad usage. Verbs only read: none of them removes anything.
struct Verb {
    std::string_view name;
    std::string_view usage;   // e.g. "size PATH... [--json]"
    std::string_view summary; // one line for --help
    int (*run)(const std::vector<std::string>& words, const Streams& streams);
};

// Every verb, in the order --help lists them (defined in Verbs.cpp).
const std::vector<Verb>& verbs();

// The whole command line after the program name. Never throws. Status 0 on success; 1 when a
// report is incomplete (a path or a folder could not be read) or could not be written whole;
// 2 on bad usage.
int run(const std::vector<std::string>& arguments, const Streams& streams);
int run(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

} // namespace ZephraneCli
