#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

namespace CleanerCore {

struct CommandResult {
    std::int32_t status = 0; // the exit status; 128 + the signal's number when a signal ended it
    std::string standardOutput;
    std::string standardError;

    bool operator==(const CommandResult&) const = default;
};

// The one way the update code runs other programs, so that it can be driven with canned answers.
class CommandRunning {
public:
    virtual ~CommandRunning() = default;

    // Runs the executable at `path` with `arguments` (no shell). Throws std::system_error only when
    // it can't be started; a failing or timed-out command is a result with a non-zero status.
    virtual CommandResult run(const std::string& path, const std::vector<std::string>& arguments,
                              std::chrono::milliseconds timeout) const = 0;
};

} // namespace CleanerCore
