#include "FlatpakFixture.hpp"
#include "TempTree.hpp"

#include <fcntl.h>
#include <memory>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace fs = std::filesystem;

namespace TestSupport {

namespace {

std::string appStream(const FlatpakFixtureApp& app) {
    std::string xml =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<components version=\"0.8\" origin=\"flatpak\">\n"
        "  <component type=\"desktop-application\">\n    <id>" +
        app.id + "</id>\n";
    if (app.name)
        xml += "    <name>" + *app.name + "</name>\n    <name xml:lang=\"pt-BR\">" + *app.name +
               " (pt)</name>\n";
    if (app.version)
        xml +=
            "    <releases><release version=\"" + *app.version + "\" timestamp=\"1700000000\"/></releases>\n";
    return xml + "  </component>\n</components>\n";
}

std::string scopeFlag(FlatpakFixture::Scope scope) {
    return scope == FlatpakFixture::Scope::user ? "--user" : "--system";
}

} // namespace

void isolateFlatpak(const fs::path& base) {
    fs::create_directories(base / "system");
    fs::create_directories(base / "config");
    ::setenv("FLATPAK_USER_DIR", (base / "user").c_str(), 1);
    ::setenv("FLATPAK_SYSTEM_DIR", (base / "system").c_str(), 1);
    ::setenv("FLATPAK_CONFIG_DIR", (base / "config").c_str(), 1);
}

fs::path FlatpakFixture::installation(Scope scope) {
    const char* dir = std::getenv(scope == Scope::user ? "FLATPAK_USER_DIR" : "FLATPAK_SYSTEM_DIR");
    return dir ? fs::path(dir) : fs::path();
}

int FlatpakFixture::run(const std::vector<std::string>& arguments, std::string& output) {
    int pipeFds[2];
    if (::pipe(pipeFds) != 0)
        return -1;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, pipeFds[1], 1);
    posix_spawn_file_actions_adddup2(&actions, pipeFds[1], 2);
    posix_spawn_file_actions_addclose(&actions, pipeFds[0]);
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    std::vector<char*> argv;
    for (const std::string& argument : arguments)
        argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);
    pid_t child = 0;
    const int spawned = posix_spawnp(&child, argv[0], &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    ::close(pipeFds[1]);
    char buffer[4096];
    for (ssize_t got; (got = ::read(pipeFds[0], buffer, sizeof buffer)) > 0;)
        output.append(buffer, static_cast<std::size_t>(got));
    ::close(pipeFds[0]);
    if (spawned != 0)
        return -1;
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void FlatpakFixture::mustRun(const std::vector<std::string>& arguments) {
    std::string output;
    if (run(arguments, output) != 0) {
        std::string line;
        for (const std::string& argument : arguments)
            line += argument + " ";
        throw std::runtime_error(line + "failed:\n" + output);
    }
}

namespace {
std::string& failure() {
    static std::string reason;
    return reason;
}
} // namespace

const std::string& FlatpakFixture::unavailable() {
    shared();
    return failure();
}

FlatpakFixture* FlatpakFixture::shared() {
    static const std::unique_ptr<FlatpakFixture> fixture = []() -> std::unique_ptr<FlatpakFixture> {
        std::string output;
        if (run({"flatpak", "--version"}, output) != 0) {
            failure() = "the flatpak command is not installed (scripts/install-deps installs it)";
            return nullptr;
        }
        if (installation(Scope::user).empty()) {
            failure() = "FLATPAK_USER_DIR is not set; the test main must call isolateHome()";
            return nullptr;
        }
        try {
            return std::make_unique<FlatpakFixture>();
        } catch (const std::exception& error) {
            failure() = error.what();
            return nullptr;
        }
    }();
    return fixture.get();
}

FlatpakFixture::FlatpakFixture() : root(folder.root()), repo(root / "repo") {
    // The runtime is its own SDK, holds one file and needs nothing from the network.
    const fs::path runtime = root / "runtime";
    writeText(runtime / "metadata", std::string("[Runtime]\nname=") + runtimeID + "\nruntime=" + runtimeID +
                                        "/x86_64/1\nsdk=" + runtimeID + "/x86_64/1\n");
    writeText(runtime / "files/etc/os-release", "ID=zephrane-fixture\n");
    fs::create_directories(runtime / "usr");
    mustRun({"flatpak", "build-export", "--runtime", "--arch=x86_64", repo.string(), runtime.string(), "1"});
    mustRun({"flatpak", "build-update-repo", repo.string()});
    for (Scope scope : {Scope::user, Scope::system}) {
        mustRun({"flatpak", scopeFlag(scope), "remote-add", "--if-not-exists", "--no-gpg-verify", remoteName,
                 "file://" + repo.string()});
        mustRun({"flatpak", scopeFlag(scope), "install", "-y", "--noninteractive", remoteName,
                 std::string(runtimeID) + "/x86_64/1"});
    }
}

void FlatpakFixture::exportApp(const FlatpakFixtureApp& app) {
    const fs::path build = root / ("build-" + std::to_string(++builds));
    mustRun({"flatpak", "build-init", "--arch=x86_64", build.string(), app.id, runtimeID, runtimeID, "1"});
    writeText(build / "files/bin/hello", "#!/bin/sh\necho hello\n");
    fs::permissions(build / "files/bin/hello", fs::perms::owner_exec, fs::perm_options::add);
    if (app.payloadBytes > 0)
        writeText(build / "files/share/payload", std::string(app.payloadBytes, 'p'));
    if (app.name || app.version) {
        const fs::path xml = build / "files/share/app-info/xmls" / (app.id + ".xml");
        writeText(xml, appStream(app));
        mustRun({"gzip", "-n", "-f", xml.string()});
    }
    mustRun({"flatpak", "build-finish", build.string(), "--command=hello"});
    mustRun({"flatpak", "build-export", "--arch=x86_64", repo.string(), build.string(), app.branch});
    mustRun({"flatpak", "build-update-repo", repo.string()});
    fs::remove_all(build);
}

void FlatpakFixture::install(const std::string& id, Scope scope, const std::string& branch) {
    mustRun({"flatpak", scopeFlag(scope), "install", "-y", "--noninteractive", remoteName,
             "app/" + id + "/x86_64/" + branch});
}

void FlatpakFixture::update(const std::string& id, Scope scope) {
    mustRun({"flatpak", scopeFlag(scope), "update", "-y", "--noninteractive", id});
}

void FlatpakFixture::uninstall(const std::string& id, Scope scope) {
    mustRun({"flatpak", scopeFlag(scope), "uninstall", "-y", "--noninteractive", id});
}

} // namespace TestSupport
