#include "Cli.hpp"

#include <gtest/gtest.h>

#include <sstream>

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
    for (const auto& words : std::vector<std::vector<std::string>>{{}, {"frobnicate"}, {"--nope"}}) {
        const Result result = run(words);
        EXPECT_EQ(result.status, 2);
        EXPECT_TRUE(result.out.empty());
        ASSERT_FALSE(result.err.empty());
        EXPECT_EQ(result.err.find('\n'), result.err.size() - 1) << "one line: " << result.err;
    }
}
