#pragma once

#include "TempTree.hpp"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace TestSupport {

// One app to put in the fixture repository.
struct FlatpakFixtureApp {
    std::string id;                     // "org.zephrane.Test.Hello"
    std::optional<std::string> name;    // AppStream <name>; with neither, no AppStream file at all
    std::optional<std::string> version; // AppStream <release version=...>
    std::string branch = "stable";
    std::size_t payloadBytes = 0; // an extra file of this size in the app's files
};

// A real Flatpak repository and installations, made offline with the flatpak command: a tiny
// runtime whose metadata names itself as its own SDK, apps built on it with build-init,
// build-finish and build-export, AppStream data in files/share/app-info/xmls/<id>.xml.gz and in
// the repository (build-update-repo), and a "file://" remote added with --no-gpg-verify to the
// user installation ($FLATPAK_USER_DIR) and the system one ($FLATPAK_SYSTEM_DIR), which the test
// main points at temporary folders before anything reads them (libflatpak reads them once).
//
// One fixture serves the whole test program (tests use ids of their own); an app exported again
// with a new version is a new commit, so an installed one has an update waiting.
class FlatpakFixture {
public:
    enum class Scope { user, system };

    // The fixture, built on first use; nothing when flatpak can't work here (see unavailable()).
    static FlatpakFixture* shared();
    // Why the fixture can't be built, for a test's skip message; empty when it can.
    static const std::string& unavailable();

    // Builds `app` and exports it to the repository (a new commit each time), then refreshes the
    // repository's summary and AppStream branch. Throws std::runtime_error with flatpak's output.
    void exportApp(const FlatpakFixtureApp& app);
    // flatpak install / update / uninstall of an exported app. Same errors.
    void install(const std::string& id, Scope scope = Scope::user, const std::string& branch = "stable");
    void update(const std::string& id, Scope scope = Scope::user);
    void uninstall(const std::string& id, Scope scope = Scope::user);

    static constexpr const char* remoteName = "zephrane-fixture";
    static constexpr const char* runtimeID = "org.zephrane.Fixture.Platform";
    const std::filesystem::path& repository() const { return repo; }
    static std::filesystem::path installation(Scope scope);

    // Runs a command (no shell), returning its exit status and putting stdout and stderr in `output`.
    static int run(const std::vector<std::string>& arguments, std::string& output);

    FlatpakFixture(); // use shared()

private:
    void mustRun(const std::vector<std::string>& arguments);

    TempTree folder; // the repository and the build folders, removed at exit
    std::filesystem::path root;
    std::filesystem::path repo;
    int builds = 0;
};

// Gives this test program Flatpak installations of its own (user, system and configuration
// folders under `base`), so that neither tests nor libflatpak see the machine's. Called by
// isolateHome().
void isolateFlatpak(const std::filesystem::path& base);

} // namespace TestSupport

// In a test body: `fixture` is the shared fixture, or the test is skipped saying why there is none.
#define REQUIRE_FLATPAK(fixture)                                                                             \
    TestSupport::FlatpakFixture* fixture = TestSupport::FlatpakFixture::shared();                            \
    if (fixture == nullptr)                                                                                  \
    GTEST_SKIP() << TestSupport::FlatpakFixture::unavailable()
