#include "CleanerCore/Updates/SpawnCommandRunner.hpp"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <thread>

extern char** environ;

namespace CleanerCore {
namespace {

constexpr auto killGrace = std::chrono::seconds(5);

// An output file in the temporary folder: "zephrane-<random>.out"; removed when this goes.
class OutputFile {
public:
    explicit OutputFile(const char* suffix) {
        const char* folder = std::getenv("TMPDIR");
        path = std::string(folder != nullptr && *folder != '\0' ? folder : "/tmp") + "/zephrane-XXXXXX" + suffix;
        fd = mkostemps(path.data(), static_cast<int>(std::strlen(suffix)), O_CLOEXEC);
        if (fd < 0)
            throw std::system_error(errno, std::generic_category(), "creating " + path);
    }
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;
    ~OutputFile() {
        if (fd >= 0)
            ::close(fd);
        ::unlink(path.c_str());
    }

    int descriptor() const { return fd; }

    std::string contents() const {
        std::string bytes;
        char buffer[64 * 1024];
        for (off_t offset = 0;;) {
            const ssize_t n = ::pread(fd, buffer, sizeof buffer, offset);
            if (n < 0 && errno == EINTR)
                continue;
            if (n <= 0)
                break;
            bytes.append(buffer, static_cast<std::size_t>(n));
            offset += n;
        }
        return bytes;
    }

private:
    std::string path;
    int fd = -1;
};

// Waits up to `limit` for the child to end, without reaping it. Uses a pidfd where the kernel has
// them, else polls.
bool waitForExit(pid_t pid, int pidfd, std::chrono::milliseconds limit) {
    const auto deadline = std::chrono::steady_clock::now() + limit;
    for (;;) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        if (pidfd >= 0) {
            pollfd entry{pidfd, POLLIN, 0};
            const int ready = ::poll(&entry, 1, static_cast<int>(std::max<std::int64_t>(0, left.count())));
            if (ready > 0)
                return true;
            if (ready == 0)
                return false;
            if (errno != EINTR)
                return false;
            continue;
        }
        siginfo_t info{};
        if (::waitid(P_PID, static_cast<id_t>(pid), &info, WEXITED | WNOHANG | WNOWAIT) == 0 && info.si_pid == pid)
            return true;
        if (left.count() <= 0)
            return false;
        std::this_thread::sleep_for(std::min(left, std::chrono::milliseconds(10)));
    }
}

std::int32_t reap(pid_t pid) {
    int status = 0;
    while (::waitpid(pid, &status, 0) < 0)
        if (errno != EINTR)
            return -1;
    if (WIFEXITED(status))
        return WEXITSTATUS(status);
    if (WIFSIGNALED(status))
        return 128 + WTERMSIG(status);
    return -1;
}

} // namespace

CommandResult SpawnCommandRunner::run(const std::string& path, const std::vector<std::string>& arguments,
                                      std::chrono::milliseconds timeout) const {
    OutputFile output(".out");
    OutputFile errors(".err");

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, output.descriptor(), STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, errors.descriptor(), STDERR_FILENO);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    // The child starts with default signal handling whatever this process has set up.
    sigset_t all;
    sigfillset(&all);
    sigset_t none;
    sigemptyset(&none);
    posix_spawnattr_setsigdefault(&attributes, &all);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);

    std::vector<char*> argv;
    argv.push_back(const_cast<char*>(path.c_str()));
    for (const std::string& argument : arguments)
        argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);

    pid_t pid = 0;
    const int spawned = posix_spawn(&pid, path.c_str(), &actions, &attributes, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    posix_spawnattr_destroy(&attributes);
    if (spawned != 0)
        throw std::system_error(spawned, std::generic_category(), "starting " + path);

    const int pidfd = static_cast<int>(::syscall(SYS_pidfd_open, pid, 0));
    if (!waitForExit(pid, pidfd, timeout)) {
        ::kill(pid, SIGTERM);
        if (!waitForExit(pid, pidfd, killGrace))
            ::kill(pid, SIGKILL);
    }
    if (pidfd >= 0)
        ::close(pidfd);
    CommandResult result;
    result.status = reap(pid);
    result.standardOutput = output.contents();
    result.standardError = errors.contents();
    return result;
}

} // namespace CleanerCore
