#pragma once

#include "CleanerCore/Updates/CommandRunning.hpp"

namespace CleanerCore {

// posix_spawn without a shell. Output goes to temporary files rather than pipes, so a chatty child
// never blocks on a full pipe and no reader thread is needed; the files are always removed. A child
// still running at its time-out gets SIGTERM (and SIGKILL if it ignores that for five seconds more).
class SpawnCommandRunner final : public CommandRunning {
public:
    CommandResult run(const std::string& path, const std::vector<std::string>& arguments,
                      std::chrono::milliseconds timeout) const override;
};

} // namespace CleanerCore
