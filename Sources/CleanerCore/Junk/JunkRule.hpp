#pragma once

#include <set>
#include <string>
#include <vector>

namespace CleanerCore {

// One kind of junk: where it lies below the home, how it looks in the channel, and whether a fresh
// scan preselects it. Rules only propose candidates; SafetyGuard decides again at removal.
struct JunkRule {
    // A place below the home, relative to it.
    struct Source {
        enum class Kind {
            contents, // each direct child of `path`, except the names in `names`
            folder,   // `path` itself as one item
            files,    // each direct child of `path` whose lower-cased extension is in `names`
        };
        Kind kind = Kind::folder;
        std::string path;
        std::set<std::string> names;

        static Source contents(std::string of, std::set<std::string> excluding = {});
        static Source folder(std::string path);
        static Source files(std::string in, std::set<std::string> extensions);

        bool operator==(const Source&) const = default;
    };

    std::string id;
    std::string title;   // localized
    std::string summary; // localized
    std::string symbol;
    std::vector<Source> sources;
    bool selectedByDefault = true;

    bool operator==(const JunkRule&) const = default;

    // The six rules of the junk channel, in the order of its rows. Their texts are looked up once,
    // in the language current at the first call, and stay so for the life of the process.
    static const std::vector<JunkRule>& defaults();

    // Cache folders that the system itself keeps state in; compared by exact name.
    static const std::set<std::string>& protectedCaches();
};

} // namespace CleanerCore
