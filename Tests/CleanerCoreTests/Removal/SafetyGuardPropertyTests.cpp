#include "CleanerCore/Removal/SafetyGuard.hpp"

#include <gtest/gtest.h>

#include <random>

using namespace CleanerCore;

namespace {

// Spellings of the same path: other case, decomposed accents, trailing slashes.
std::string variant(const std::string& canonical, std::mt19937& random) {
    std::string out;
    std::bernoulli_distribution coin(0.3);
    for (std::size_t i = 0; i < canonical.size(); ++i) {
        const std::string_view rest = std::string_view(canonical).substr(i);
        if (rest.starts_with("\u00e9")) { // é: composed, decomposed, upper
            out += coin(random) ? "e\u0301" : (coin(random) ? "\u00c9" : "\u00e9");
            ++i;
        } else if (rest.starts_with("\u00e3")) { // ã
            out += coin(random) ? "a\u0303" : (coin(random) ? "\u00c3" : "\u00e3");
            ++i;
        } else {
            const char c = canonical[i];
            out += c >= 'a' && c <= 'z' && coin(random) ? static_cast<char>(c - 32) : c;
        }
    }
    if (coin(random))
        out += coin(random) ? "/" : "//";
    return out;
}

template <typename Table> std::string pick(const Table& table, std::mt19937& random) {
    return std::string(table[std::uniform_int_distribution<std::size_t>(0, table.size() - 1)(random)]);
}

} // namespace

// Paths made from the guard's own tables, near every rule's edge, answer the same however they are
// spelled; and both answers are common, so the comparison says something.
TEST(SafetyGuardProperty, EverySpellingOfAPathGetsTheSameAnswer) {
    namespace G = SafetyGuard;
    std::mt19937 random(20261122);
    const std::vector<std::string> homes{"/users/ana", "/home/jo\u00e3o", "/users/ren\u00e9e"};
    const std::vector<std::string> suffixes{"x",     "caches",    ".trashes", "501",          ".trash",
                                            "1000",  "files",     "library",  "\u00e9t\u00e9", "shared",
                                            ".ssh",  "keychains", ".cache",   ".trash-1000",  "documents"};
    const std::string bundle = "/opt/zephrane/bin/zephrane";
    int protectedCount = 0, disagreements = 0;
    constexpr int rounds = 4000;
    for (int round = 0; round < rounds && disagreements < 10; ++round) {
        const std::string home = pick(homes, random);
        std::string path;
        switch (std::uniform_int_distribution<int>(0, 6)(random)) {
        case 0: path = pick(G::exactSystemPaths, random); break;
        case 1: path = pick(G::systemTrees, random); break;
        case 2: path = "/library/" + pick(G::libraryFolders, random); break;
        case 3: path = home + "/" + pick(G::homeFolders, random); break;
        case 4: path = home + "/library/" + pick(G::libraryFolders, random); break;
        case 5: path = home + "/" + pick(G::linuxHomeFolders, random); break;
        default: path = pick(std::vector<std::string>{"/users/other", "/users/shared", "/home/bob", "/mnt/disk",
                                                      "/volumes/backup", "/media/ana/usb", "/opt/zephrane"},
                             random);
        }
        for (int extra = std::uniform_int_distribution<int>(0, 3)(random); extra > 0; --extra)
            path += "/" + pick(suffixes, random);
        const bool canonical = G::isProtected(URL::file(path), URL::file(home), URL::file(bundle));
        protectedCount += canonical;
        const bool spelled = G::isProtected(URL::file(variant(path, random)), URL::file(variant(home, random)),
                                            URL::file(variant(bundle, random)));
        if (spelled != canonical) {
            ++disagreements;
            ADD_FAILURE() << path << " with home " << home << ": " << canonical << " as written, " << spelled
                          << " in another spelling";
        }
    }
    EXPECT_GT(protectedCount, rounds / 5);
    EXPECT_LT(protectedCount, rounds * 4 / 5);
}
