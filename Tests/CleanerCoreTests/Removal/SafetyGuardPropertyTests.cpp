#include "CleanerCore/Removal/SafetyGuard.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>

using namespace CleanerCore;

namespace {

using Parts = std::vector<std::string>;

// The rules read plainly, on lists of path components, for paths that are already lower case and
// composed. Written apart from the guard so that a slip in either shows up as a disagreement.
Parts split(std::string_view path) {
    Parts parts;
    std::string current;
    for (char c : path) {
        if (c == '/') {
            if (!current.empty())
                parts.push_back(current);
            current.clear();
        } else {
            current += c;
        }
    }
    if (!current.empty())
        parts.push_back(current);
    return parts;
}

std::string lower(std::string_view text) {
    std::string out(text);
    std::transform(out.begin(), out.end(), out.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? c + 32 : c; });
    return out;
}

Parts plus(Parts base, std::string_view relative) {
    for (const std::string& part : split(lower(relative)))
        base.push_back(part);
    return base;
}

Parts concat(Parts base, const Parts& more) {
    base.insert(base.end(), more.begin(), more.end());
    return base;
}

bool startsWith(const Parts& path, const Parts& prefix) {
    return path.size() >= prefix.size() && std::equal(prefix.begin(), prefix.end(), path.begin());
}
bool strictlyBelow(const Parts& path, const Parts& prefix) {
    return path.size() > prefix.size() && startsWith(path, prefix);
}
bool childOf(const Parts& path, const Parts& folder) {
    return path.size() == folder.size() + 1 && startsWith(path, folder);
}
bool digits(const std::string& text) {
    return !text.empty() &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

template <typename Table, typename Test> bool any(const Table& table, Test test) {
    return std::any_of(table.begin(), table.end(),
                       [&](std::string_view entry) { return test(split(lower(entry))); });
}

bool oracle(const std::string& path, const std::vector<std::string>& homes,
            const std::vector<std::string>& bundles) {
    namespace G = SafetyGuard;
    const Parts p = split(path);
    const std::size_t n = p.size();
    if (n < 2)
        return true;
    if (any(G::exactSystemPaths, [&](const Parts& e) { return p == e; }) ||
        any(G::systemTrees, [&](const Parts& e) { return startsWith(p, e); }) ||
        any(G::childrenProtectedSystemFolders, [&](const Parts& e) { return childOf(p, e); }) ||
        any(G::libraryFolders, [&](const Parts& e) { return p == concat({"library"}, e); }))
        return true;
    if (p[n - 1] == ".trashes" || p[n - 2] == ".trashes")
        return true;
    bool belowAHome = false;
    for (const std::string& homeText : homes) {
        const Parts h = split(homeText);
        belowAHome = belowAHome || strictlyBelow(p, h);
        if (p == h || strictlyBelow(h, p) ||
            any(G::homeFolders, [&](const Parts& e) { return p == concat(h, e); }) ||
            any(G::libraryFolders, [&](const Parts& e) { return p == concat(plus(h, "library"), e); }) ||
            any(G::childrenProtectedHomeFolders, [&](const Parts& e) { return childOf(p, concat(h, e)); }) ||
            any(G::homeTrees, [&](const Parts& e) { return startsWith(p, concat(h, e)); }))
            return true;
        if (any(G::linuxHomeFolders, [&](const Parts& e) { return p == concat(h, e); }) ||
            any(G::linuxHomeTrees, [&](const Parts& e) { return startsWith(p, concat(h, e)); }) ||
            p == plus(h, ".local/share/trash") || childOf(p, plus(h, ".local/share/trash")))
            return true;
    }
    if (p[0] == "users" && !(n >= 3 && p[1] == "shared") && !belowAHome)
        return true;
    for (const std::string& bundleText : bundles) {
        const Parts b = split(bundleText);
        if (p == b || strictlyBelow(b, p) || strictlyBelow(p, b))
            return true;
    }
    if (any(G::linuxSystemTrees, [&](const Parts& e) { return startsWith(p, e); }) ||
        any(G::linuxChildrenProtectedSystemFolders, [&](const Parts& e) { return childOf(p, e); }) ||
        any(G::linuxGrandchildrenProtectedSystemFolders,
            [&](const Parts& e) { return n == e.size() + 2 && startsWith(p, e); }) ||
        any(G::linuxUserRoots, [&](const Parts& e) { return strictlyBelow(p, e) && !belowAHome; }))
        return true;
    const auto volumeTrash = [](const std::string& part) {
        return part == ".trash" || part.starts_with(".trash-");
    };
    if (volumeTrash(p[n - 1]) || (p[n - 2] == ".trash" && digits(p[n - 1])) ||
        p[n - 2].starts_with(".trash-") || (n >= 3 && p[n - 3] == ".trash" && digits(p[n - 2])))
        return true;
    if (const char* dataHome = std::getenv("XDG_DATA_HOME")) {
        const Parts trash = plus(split(lower(dataHome)), "trash");
        if (p == trash || childOf(p, trash) || strictlyBelow(trash, p))
            return true;
    }
    return false;
}

std::string join(const Parts& parts) {
    std::string out;
    for (const std::string& part : parts)
        out += "/" + part;
    return out.empty() ? "/" : out;
}

// Spellings of the same path: other case, decomposed accents, trailing slashes.
std::string variant(const std::string& canonical, std::mt19937& random) {
    std::string out;
    std::bernoulli_distribution coin(0.3);
    for (std::size_t i = 0; i < canonical.size(); ++i) {
        const char c = canonical[i];
        const std::string_view rest = std::string_view(canonical).substr(i);
        if (rest.starts_with("\u00e9")) { // é: composed, decomposed, upper
            out += coin(random) ? "e\u0301" : (coin(random) ? "\u00c9" : "\u00e9");
            ++i;
        } else if (rest.starts_with("\u00e3")) { // ã
            out += coin(random) ? "a\u0303" : (coin(random) ? "\u00c3" : "\u00e3");
            ++i;
        } else {
            out += c >= 'a' && c <= 'z' && coin(random) ? char(c - 32) : c;
        }
    }
    if (coin(random))
        out += coin(random) ? "/" : "//";
    return out;
}

} // namespace

TEST(SafetyGuardProperty, AgreesWithAPlainReadingOfTheRulesOnRandomSpellings) {
    std::mt19937 random(20261122);
    const std::vector<std::string> homesPool{"/users/ana", "/home/jo\u00e3o", "/users/ren\u00e9e"};
    const std::string bundle = "/opt/zephrane/bin";
    const std::vector<std::string> suffixes{"x",         "caches",
                                            ".trashes",  "501",
                                            ".trash",    ".trash-1000",
                                            "1000",      "files",
                                            "info",      "library",
                                            "documents", "\u00e9t\u00e9",
                                            "shared",    "photos library.photoslibrary",
                                            ".ssh",      "keychains",
                                            "mail",      ".cache"};
    const auto pick = [&](const auto& table) {
        return std::string(table[std::uniform_int_distribution<std::size_t>(0, table.size() - 1)(random)]);
    };
    namespace G = SafetyGuard;
    int disagreements = 0, protectedCount = 0, rounds = 0;
    for (int round = 0; round < 6000 && disagreements < 10; ++round) {
        const std::string home = pick(homesPool);
        Parts base;
        switch (std::uniform_int_distribution<int>(0, 11)(random)) {
        case 0:
            base = split(lower(pick(G::exactSystemPaths)));
            break;
        case 1:
            base = split(lower(pick(G::systemTrees)));
            break;
        case 2:
            base = split(lower(pick(G::childrenProtectedSystemFolders)));
            break;
        case 3:
            base = plus({"library"}, pick(G::libraryFolders));
            break;
        case 4:
            base = plus(split(home), pick(G::homeFolders));
            break;
        case 5:
            base = plus(plus(split(home), "library"), pick(G::libraryFolders));
            break;
        case 6:
            base = plus(split(home), pick(G::childrenProtectedHomeFolders));
            break;
        case 7:
            base = plus(split(home), pick(G::homeTrees));
            break;
        case 8:
            base = plus(split(home), pick(G::linuxHomeFolders));
            break;
        case 9:
            base = split(lower(pick(G::linuxSystemTrees)));
            break;
        case 10:
            base =
                split(pick(std::vector<std::string>{"/users/other", "/users/shared", "/home/bob", "/mnt/disk",
                                                    "/volumes/backup", "/media/ana/usb", "/opt/zephrane"}));
            break;
        default:
            base = split(pick(homesPool));
            break;
        }
        for (int extra = std::uniform_int_distribution<int>(0, 3)(random); extra > 0; --extra)
            base.push_back(pick(suffixes));
        const std::string canonical = join(base);
        const bool expected = oracle(canonical, {home}, {bundle});
        protectedCount += expected;
        ++rounds;
        const bool actual =
            G::isProtected(URL::file(variant(canonical, random)), URL::file(variant(home, random)),
                           URL::file(variant(bundle, random)));
        if (actual != expected) {
            ++disagreements;
            ADD_FAILURE() << canonical << " with home " << home << ": guard says " << actual << ", rules say "
                          << expected;
        }
    }
    // Both answers must be common, or the comparison proves little.
    EXPECT_GT(protectedCount, rounds / 5);
    EXPECT_LT(protectedCount, rounds * 4 / 5);
}
