#include "Cli.hpp"

#include "TempTree.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <sstream>
#include <sys/wait.h>

namespace {

struct Result {
    int status;
    std::string out, err;
};

Result run(std::vector<std::string> arguments) {
    std::ostringstream out, err;
    const int status = ZephraneCli::run(arguments, out, err);
    return {status, out.str(), err.str()};
}

} // namespace

TEST(Cli, HelpAndVersionSucceed) {
    const Result help = run({"--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_NE(help.out.find("Usage: zephrane-cli"), std::string::npos);
    for (const auto& verb : ZephraneCli::verbs())
        EXPECT_NE(help.out.find(verb.usage), std::string::npos) << verb.name;
    const Result version = run({"--version"});
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.out, std::string("zephrane-cli ") + ZEPHRANE_VERSION + "\n");
}

TEST(Cli, BadUsageIsOneLineOnStderrWithStatusTwo) {
    for (const auto& words : std::vector<std::vector<std::string>>{
             {}, {"frobnicate"}, {"--nope"}, {"size", ""}, {"size", "--keep", "1", "/"}}) {
        const Result result = run(words);
        EXPECT_EQ(result.status, 2);
        EXPECT_TRUE(result.out.empty());
        ASSERT_FALSE(result.err.empty());
        EXPECT_EQ(result.err.find('\n'), result.err.size() - 1) << "one line: " << result.err;
    }
}

// A report that could not be written whole is a failure a script can see.
TEST(Cli, AReportThatCannotBeWrittenIsStatusOneAndOneLine) {
    std::ostream broken(nullptr);
    std::ostringstream err;
    EXPECT_EQ(ZephraneCli::run({"--version"}, broken, err), 1);
    EXPECT_EQ(err.str().find('\n'), err.str().size() - 1) << err.str();

    TestSupport::TempTree tree;
    tree.file("a/b", 10);
    const std::string errors = tree.path("stderr").string();
    for (const std::string verb : {"size", "tree"}) {
        const std::string command = std::string(ZEPHRANE_CLI_PATH) + " " + verb + " " + tree.path("a").string() +
                                    " > /dev/full 2> " + errors;
        const int status = std::system(command.c_str());
        ASSERT_TRUE(WIFEXITED(status));
        EXPECT_EQ(WEXITSTATUS(status), 1) << verb;
        std::stringstream message;
        message << std::ifstream(errors).rdbuf();
        EXPECT_EQ(message.str().find('\n'), message.str().size() - 1) << message.str();
    }
}
