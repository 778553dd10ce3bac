#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace ZephraneCli {

class Arguments;

// One verb of the command line. `run` gets the words after the verb and returns the exit status;
// it throws UsageError for bad usage. Verbs only read: none of them removes anything.
struct Verb {
    std::string_view name;
    std::string_view usage;   // e.g. "size PATH... [--json]"
    std::string_view summary; // one line for --help
    int (*run)(const std::vector<std::string>& words, std::ostream& out, std::ostream& err);
};

// Every verb, in the order --help lists them (defined in Verbs.cpp).
const std::vector<Verb>& verbs();

// The whole command line after the program name. Never throws; bad usage gives status 2.
int run(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

} // namespace ZephraneCli
