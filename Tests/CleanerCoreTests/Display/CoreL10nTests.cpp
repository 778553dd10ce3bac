#include "CleanerCore/Display/CoreL10n.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>

using namespace CleanerCore;

TEST(CoreL10n, MatchesLocalizationsByIdentifierThenLanguage) {
    EXPECT_EQ(CoreL10n::bundle("en"), "en");
    EXPECT_EQ(CoreL10n::bundle("en_GB"), "en");
    EXPECT_EQ(CoreL10n::bundle("EN-us"), "en");
    EXPECT_EQ(CoreL10n::bundle("pt-BR"), "pt-BR");
    EXPECT_EQ(CoreL10n::bundle("pt_PT"), "pt-BR");
    EXPECT_EQ(CoreL10n::bundle("pt"), "pt-BR");
    // No match, and no locale at all, both give the language the application chose.
    CoreL10n::setCurrentLanguage("en");
    EXPECT_EQ(CoreL10n::bundle("fr-FR"), "en");
    EXPECT_EQ(CoreL10n::bundle(std::nullopt), "en");
    CoreL10n::setCurrentLanguage("de");
    EXPECT_EQ(CoreL10n::currentLanguage(), "pt-BR") << "Portuguese is the fallback";
}

TEST(CoreL10n, MissingKeyComesBackAsItself) {
    EXPECT_EQ(CoreL10n::string("core.no.such.key", "en"), "core.no.such.key");
    EXPECT_EQ(CoreL10n::format("core.no.such.key", "pt-BR", {std::int64_t{3}}), "core.no.such.key");
}

// Every "core.*" key named in the engine's or the command line's sources has a text in both tables.
TEST(CoreL10n, EveryKeyUsedInCodeHasTextInBothLanguages) {
    namespace fs = std::filesystem;
    const std::regex keyLiteral(R"re("(core\.[A-Za-z0-9_.]+[A-Za-z0-9_])")re");
    std::set<std::string> used;
    for (const char* folder : {"Sources/CleanerCore", "Sources/zephrane-cli", "Sources/Zephrane"}) {
        const fs::path root = fs::path(ZEPHRANE_SOURCE_DIR) / folder;
        if (!fs::exists(root))
            continue;
        for (const auto& entry : fs::recursive_directory_iterator(root)) {
            const auto extension = entry.path().extension();
            if (extension != ".cpp" && extension != ".hpp" && extension != ".qml")
                continue;
            std::ifstream in(entry.path());
            std::stringstream text;
            text << in.rdbuf();
            const std::string content = text.str();
            for (std::sregex_iterator it(content.begin(), content.end(), keyLiteral), end; it != end; ++it)
                used.insert((*it)[1]);
        }
    }
    for (std::string_view localization : CoreL10n::localizations()) {
        const auto keys = CoreL10n::keys(localization);
        const std::set<std::string> known(keys.begin(), keys.end());
        for (const std::string& key : used)
            EXPECT_TRUE(known.contains(key)) << key << " has no text in " << localization;
    }
}

TEST(CoreL10n, TablesHaveTheSameKeys) {
    EXPECT_EQ(CoreL10n::keys("en"), CoreL10n::keys("pt-BR"));
    EXPECT_FALSE(CoreL10n::keys("en").empty());
}
