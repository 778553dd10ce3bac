#include "Cli.hpp"
#include "ScopedEnvironment.hpp"
#include "TempTree.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>

TEST(TrashVerb, ReportsTheHomeTrashFirstWithSizesAndDates) {
    TestSupport::TempTree tree;
    tree.file("share/Trash/files/big.bin", 40000);
    tree.file("share/Trash/files/small.txt", 10);
    tree.text("share/Trash/info/big.bin.trashinfo",
              "[Trash Info]\nPath=/x/big.bin\nDeletionDate=2026-03-04T05:06:07\n");
    const TestSupport::ScopedEnvironment home("HOME", tree.root()), data("XDG_DATA_HOME", tree.path("share"));

    std::ostringstream json, err;
    ASSERT_EQ(ZephraneCli::run({"trash", "--json"}, json, err), 0) << err.str();
    const auto bins = nlohmann::json::parse(json.str());
    ASSERT_GE(bins.size(), 1u);
    EXPECT_EQ(bins[0]["path"], tree.path("share/Trash").string());
    const auto& items = bins[0]["items"];
    ASSERT_EQ(items.size(), 2u);
    EXPECT_EQ(items[0]["path"], tree.path("share/Trash/files/big.bin").string());
    EXPECT_TRUE(items[0]["dateAdded"].get<std::string>().starts_with("2026-03-0"));
    EXPECT_TRUE(items[1]["dateAdded"].is_null());

    EXPECT_EQ(ZephraneCli::run({"trash", "/somewhere"}, json, err), 2);
}
