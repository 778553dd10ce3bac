#pragma once

#include <map>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace ZephraneCli {

// Bad usage: main prints the message on one line and exits with status 2.
struct UsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// A verb's arguments: positionals, boolean switches ("--json") and options with a value
// ("--keep 12" or "--keep=12"). Anything not declared is a UsageError.
class Arguments {
public:
    static Arguments parse(const std::vector<std::string>& words, const std::set<std::string>& switches,
                           const std::set<std::string>& options);

    bool has(const std::string& name) const { return present.contains(name); }
    std::optional<std::string> value(const std::string& name) const;
    // The option as a non-negative whole number, or `fallback` when absent; UsageError when malformed.
    long long number(const std::string& name, long long fallback) const;
    const std::vector<std::string>& positionals() const { return positional; }

private:
    std::vector<std::string> positional;
    std::set<std::string> present;
    std::map<std::string, std::string> values;
};

} // namespace ZephraneCli
