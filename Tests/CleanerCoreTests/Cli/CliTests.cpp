#include "CliRun.hpp"
#include "TempTree.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sys/wait.h>

using CliTest::oneLine;
using CliTest::run;

TEST(Cli, HelpAndVersionSucceed) {
    const auto help = run({"--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_NE(help.out.find("Usage: zephrane-cli"), std::string::npos);
    for (const auto& verb : ZephraneCli::verbs())
        EXPECT_NE(help.out.find(verb.usage), std::string::npos) << verb.name;
    const auto version = run({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.out, std::string("zephrane-cli ") + ZEPHRANE_VERSION + "\n");
}

TEST(Cli, BadUsageIsOneLineOnStderrWithStatusTwo) {
    // Every misuse, "|" between them; the first is no argument at all.
    std::istringstream misuses("|frobnicate|--nope|size|size --keep 1 /|tree|tree / --keep many|guard|"
                               "guard --force /tmp/x|apps /tmp|junk /tmp|leftovers --app|leftovers somewhere|"
                               "large --min -5|large --min 12k|large --age 2y|large --kind movie|"
                               "large --sort date|large --min|large --colour|large /tmp /tmp|"
                               "large /nonexistent/zephrane");
    for (std::string line; std::getline(misuses, line, '|');) {
        std::istringstream split(line);
        const auto result = run({std::istream_iterator<std::string>(split), {}});
        EXPECT_EQ(result.status, 2) << line;
        EXPECT_TRUE(result.out.empty());
        EXPECT_TRUE(oneLine(result.err)) << result.err;
    }
    for (const char* verb : {"size", "tree"})
        EXPECT_EQ(run({verb, ""}).status, 2) << "an empty path";
}

// A report that could not be written whole is a failure a script can see.
TEST(Cli, AReportThatCannotBeWrittenIsStatusOneAndOneLine) {
    std::ostream broken(nullptr);
    std::ostringstream err;
    EXPECT_EQ(ZephraneCli::run({"--version"}, broken, err), 1);
    EXPECT_TRUE(oneLine(err.str())) << err.str();

    TestSupport::TempTree tree;
    tree.file("a/b", 10);
    const std::string errors = tree.path("stderr").string();
    for (const std::string verb : {"size", "tree"}) {
        const std::string command = std::string(ZEPHRANE_CLI_PATH) + " " + verb + " " +
                                    tree.path("a").string() + " > /dev/full 2> " + errors;
        const int status = std::system(command.c_str());
        ASSERT_TRUE(WIFEXITED(status));
        EXPECT_EQ(WEXITSTATUS(status), 1) << verb;
        std::stringstream message;
        message << std::ifstream(errors).rdbuf();
        EXPECT_TRUE(oneLine(message.str())) << message.str();
    }
}
