#include "Cli.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>

TEST(MonitorVerb, ReportsOneMeasuredReadingAsJsonOrLines) {
    std::ostringstream out, err;
    ASSERT_EQ(ZephraneCli::run({"monitor", "--json"}, out, err), 0) << err.str();
    const auto report = nlohmann::json::parse(out.str());
    EXPECT_GE(report["cpuCores"].get<int>(), 1);
    EXPECT_GT(report["memoryUsed"].get<std::uint64_t>(), 0u);
    EXPECT_LE(report["memoryUsed"].get<std::uint64_t>(), report["memoryTotal"].get<std::uint64_t>());
    EXPECT_GE(report["cpuUsage"].get<double>(), 0);
    EXPECT_LE(report["cpuUsage"].get<double>(), 1);
    EXPECT_GT(report["diskTotal"].get<std::int64_t>(), 0);
    EXPECT_THAT(report["status"].get<std::string>(), testing::AnyOf("ok", "diskAlmostFull"));
    EXPECT_TRUE(report["hogs"].is_array());
    EXPECT_LE(report["hogs"].size(), 3u);

    out.str("");
    ASSERT_EQ(ZephraneCli::run({"monitor"}, out, err), 0);
    EXPECT_THAT(out.str(), testing::StartsWith("cpu\t"));
    EXPECT_THAT(out.str(), testing::HasSubstr("\nstatus\t"));
    EXPECT_EQ(ZephraneCli::run({"monitor", "/"}, out, err), 2);
}
