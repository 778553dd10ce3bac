#pragma once

#include <cerrno>
#include <string_view>

namespace CleanerCore::Platform {

// Repeats a call that a signal interrupted (EINTR), a bounded number of times, so a signal storm
// ends as a failure instead of a hang.
template <typename Call> auto retryingInterrupted(Call&& call) {
    constexpr int attempts = 64;
    auto result = call();
    for (int i = 1; i < attempts && result < 0 && errno == EINTR; ++i)
        result = call();
    return result;
}

// Opens the absolute folder `path` one component at a time from "/", never through a link, as a
// path-only descriptor usable as the folder of *at calls. -1 with errno on failure: ELOOP or ENOTDIR
// when a component is (now) a link or no folder.
int openFolderNoFollow(std::string_view path);

} // namespace CleanerCore::Platform
