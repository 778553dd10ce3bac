#include "CleanerCore/Updates/CurlUpdateFetcher.hpp"
#include "CleanerCore/Updates/SpawnCommandRunner.hpp"
#include "LocalHttpServer.hpp"
#include "ScopedEnvironment.hpp"
#include "TempTree.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <system_error>

using namespace CleanerCore;
using testing::HasSubstr;
using testing::IsEmpty;
using TestSupport::LocalHttpServer;

namespace {

LocalHttpServer::Response answerFor(const std::string& path) {
    static const std::map<std::string, LocalHttpServer::Response> answers{
        {"/feed.xml", {200, {{"Content-Type", "application/xml"}}, "<rss/>"}},
        {"/empty", {204, {}, ""}},
        {"/unchanged", {304, {}, ""}},
        {"/exactly-ten", {200, {}, "0123456789"}},
        {"/eleven", {200, {}, "0123456789A"}},
        {"/huge", {200, {}, std::string(8 << 20, 'x')}},
        {"/slow", {200, {}, "late", std::chrono::seconds(20)}},
        {"/to-file", {302, {{"Location", "file:///etc/hostname"}}, ""}},
        {"/to-feed", {301, {{"Location", "/feed.xml"}}, ""}},
        {"/download/App.zip", {200, {}, "zip bytes"}},
        {"/named",
         {200, {{"Content-Disposition", "attachment; filename=\"../Suggested 1.2.dmg\""}}, "dmg bytes"}},
        {"/download/", {200, {}, "no name"}}};
    const auto found = answers.find(path);
    return found == answers.end() ? LocalHttpServer::Response{404, {}, "not here"} : found->second;
}

template <typename Call> std::optional<UpdateFetchError> fetchError(Call call) {
    try {
        call();
    } catch (const UpdateFetchError& error) {
        return error;
    }
    return std::nullopt;
}

} // namespace

TEST(CurlUpdateFetcher, ReturnsBodiesAndTurnsOtherStatusesIntoErrors) {
    LocalHttpServer server(answerFor);
    const CurlUpdateFetcher fetcher(std::chrono::seconds(5), 10);
    const auto at = [&](const char* path) { return URL::parse(server.url(path)); };

    EXPECT_EQ(fetcher.data(at("/feed.xml")), "<rss/>");
    EXPECT_EQ(fetcher.data(at("/empty")), "");
    EXPECT_EQ(fetcher.data(at("/to-feed")), "<rss/>") << "a redirect to http is followed";
    for (const auto& [path, status] : {std::pair{"/unchanged", 304}, std::pair{"/missing", 404}}) {
        const auto error = fetchError([&] { fetcher.data(at(path)); });
        ASSERT_TRUE(error.has_value()) << path;
        EXPECT_EQ(error->kind(), UpdateFetchError::Kind::badStatus);
        EXPECT_EQ(error->status(), status);
    }
    EXPECT_THAT(server.requests().front(), HasSubstr("User-Agent: Zephrane (Linux; updater)"));

    EXPECT_EQ(fetcher.data(at("/exactly-ten")), "0123456789") << "exactly the limit passes";
    for (const char* path : {"/eleven", "/huge"}) {
        const auto error = fetchError([&] { fetcher.data(at(path)); });
        ASSERT_TRUE(error.has_value()) << path;
        EXPECT_EQ(error->kind(), UpdateFetchError::Kind::tooLarge);
    }
}

TEST(CurlUpdateFetcher, NeverLeavesHttpAndGivesUpOnStalledServers) {
    LocalHttpServer server(answerFor);
    const CurlUpdateFetcher fetcher(std::chrono::seconds(1), 1 << 20);
    EXPECT_THROW(fetcher.data(URL::parse(server.url("/to-file"))), TransferError);
    EXPECT_THROW(fetcher.data(URL::file("/etc/hostname")), TransferError);
    EXPECT_THROW(fetcher.data(URL::parse(server.url("/slow"))), TransferError);
    // Nothing listens on port 1 of the loopback: refused at once.
    EXPECT_THROW(fetcher.data(URL::parse("http://127.0.0.1:1/")), TransferError);
}

TEST(CurlUpdateFetcher, DownloadsUnderTheBestNameAndCleansUpOnFailure) {
    LocalHttpServer server(answerFor);
    const CurlUpdateFetcher fetcher(std::chrono::seconds(5), 4);
    TestSupport::TempTree tree;
    const URL folder = URL::file(tree.folder("downloads").string());

    // No size limit applies to downloads.
    const URL zip = fetcher.download(URL::parse(server.url("/download/App.zip")), folder);
    EXPECT_EQ(zip.path(), tree.path("downloads/App.zip").string());
    EXPECT_EQ(fetcher.download(URL::parse(server.url("/named")), folder).lastPathComponent(),
              "Suggested 1.2.dmg")
        << "a suggested name is taken, but never with a folder in front";
    EXPECT_EQ(fetcher.download(URL::parse(server.url("/download/")), folder).lastPathComponent(), "update");
    std::ifstream in(zip.path());
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(in), {}), "zip bytes");

    const auto error = fetchError([&] { fetcher.download(URL::parse(server.url("/gone.zip")), folder); });
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->status(), 404);
    EXPECT_THROW(fetcher.download(URL::parse(server.url("/to-file")), folder), TransferError);
    EXPECT_THAT(TestSupport::namesIn(tree.path("downloads")),
                testing::ElementsAre("App.zip", "Suggested 1.2.dmg", "update"))
        << "no partial file is left behind";
}

TEST(SpawnCommandRunner, CollectsOutputPastAPipesCapacityAndTheExitStatus) {
    TestSupport::TempTree tree;
    const TestSupport::ScopedEnvironment temporary("TMPDIR", tree.folder("tmp").string());
    const SpawnCommandRunner runner;

    // Far more than a pipe holds (64 KiB), on both streams, with nobody reading while it runs.
    const auto chatty =
        runner.run("/bin/sh", {"-c", "head -c 300000 /dev/zero; head -c 100000 /dev/zero >&2; exit 3"},
                   std::chrono::seconds(30));
    EXPECT_EQ(chatty.status, 3);
    EXPECT_EQ(chatty.standardOutput.size(), 300000u);
    EXPECT_EQ(chatty.standardError.size(), 100000u);

    const auto echo = runner.run("/bin/echo", {"two words", "$HOME"}, std::chrono::seconds(30));
    EXPECT_EQ(echo, (CommandResult{0, "two words $HOME\n", ""})) << "arguments reach the program untouched";

    const auto stdinIsEmpty = runner.run("/bin/cat", {}, std::chrono::seconds(30));
    EXPECT_EQ(stdinIsEmpty.status, 0);

    EXPECT_THROW(runner.run(tree.path("no-such-program").string(), {}, std::chrono::seconds(1)),
                 std::system_error);
    EXPECT_THAT(TestSupport::namesIn(tree.path("tmp")), IsEmpty())
        << "the output files go, also when the launch failed";
}

TEST(SpawnCommandRunner, TerminatesAChildThatOutlivesItsTimeout) {
    TestSupport::TempTree tree;
    const TestSupport::ScopedEnvironment temporary("TMPDIR", tree.folder("tmp").string());
    const auto result = SpawnCommandRunner().run("/bin/sh", {"-c", "echo started; exec sleep 60"},
                                                 std::chrono::milliseconds(300));
    EXPECT_EQ(result.status, 128 + SIGTERM);
    EXPECT_EQ(result.standardOutput, "started\n") << "what was written before the end is kept";
    EXPECT_THAT(TestSupport::namesIn(tree.path("tmp")), IsEmpty());
}
