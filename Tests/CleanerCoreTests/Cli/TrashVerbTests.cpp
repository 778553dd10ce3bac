#include "Cli.hpp"
#include "TempTree.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstdlib>
#include <fstream>
#include <sstream>

namespace {

// Sets an environment variable for the life of the object.
class ScopedVariable {
public:
    ScopedVariable(const char* name, const std::string& value) : name(name), previous(std::getenv(name)) {
        ::setenv(name, value.c_str(), 1);
    }
    ~ScopedVariable() { ::setenv(name, previous.c_str(), 1); }

private:
    const char* name;
    std::string previous;
};

} // namespace

TEST(TrashVerb, ReportsTheHomeTrashFirstWithSizesAndDates) {
    TestSupport::TempTree tree;
    tree.file("share/Trash/files/big.bin", 40000);
    tree.file("share/Trash/files/small.txt", 10);
    std::ofstream(tree.folder("share/Trash/info") / "big.bin.trashinfo")
        << "[Trash Info]\nPath=/x/big.bin\nDeletionDate=2026-03-04T05:06:07\n";
    const ScopedVariable home("HOME", tree.root().string());
    const ScopedVariable data("XDG_DATA_HOME", tree.path("share").string());

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
