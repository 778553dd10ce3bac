#pragma once

#include "Cli.hpp"

#include <sstream>
#include <string>
#include <vector>

namespace CliTest {

struct Result {
    int status;
    std::string out, err;
};

// The command line run in this process; `terminal` says whether its output is a terminal.
inline Result run(const std::vector<std::string>& words, bool terminal = false) {
    std::ostringstream out, err;
    const int status = ZephraneCli::run(words, ZephraneCli::Streams{out, err, terminal, false});
    return {status, out.str(), err.str()};
}

inline bool oneLine(const std::string& text) {
    return !text.empty() && text.find('\n') == text.size() - 1;
}

} // namespace CliTest
