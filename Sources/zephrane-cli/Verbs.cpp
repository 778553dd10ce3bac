#include "Cli.hpp"

namespace ZephraneCli {

int runJunk(const std::vector<std::string>& words, const Streams& streams);
int runSize(const std::vector<std::string>& words, const Streams& streams);
int runGuard(const std::vector<std::string>& words, const Streams& streams);
int runTree(const std::vector<std::string>& words, const Streams& streams);
int runApps(const std::vector<std::string>& words, const Streams& streams);
int runLeftovers(const std::vector<std::string>& words, const Streams& streams);
int runLarge(const std::vector<std::string>& words, const Streams& streams);
int runTrash(const std::vector<std::string>& words, const Streams& streams);
int runMonitor(const std::vector<std::string>& words, const Streams& streams);
int runUpdates(const std::vector<std::string>& words, const Streams& streams);

// Each verb lives in a file of its own (<Name>Verb.cpp) and is listed here once.
const std::vector<Verb>& verbs() {
    static const std::vector<Verb> all{
        {"size", "size PATH... [--json]", "allocated bytes on disk of each path, folders with all they hold (see below)",
         runSize},
        {"guard", "guard PATH...", "whether removal would be allowed for each path, and what it would act on",
         runGuard},
        {"junk", "junk [--json]", "what each junk rule finds in the home folder, largest items first",
         runJunk},
        {"tree", "tree PATH [--json] [--min-node-size BYTES] [--keep N]",
         "what takes up the space below PATH, folder by folder, small items summed up", runTree},
        {"apps", "apps [--json]",
         "the installed applications: bundles, Flatpaks and AppImages, with size and last use", runApps},
        {"leftovers", "leftovers [--json] [--app ID]",
         "what removed applications left in the home, or with --app what goes with one installed application",
         runLeftovers},
        {"large", "large [FOLDER] [--min BYTES] [--age any|3m|6m|1y] [--kind KIND] [--sort size|lastUsed|name] [--json]",
         "files of at least BYTES (default 50000000) below FOLDER (default the home), hidden ones, Library and "
         "the trash left out", runLarge},
        {"trash", "trash [--json]", "each trash folder of the user, its items with their sizes and dates",
         runTrash},
        {"monitor", "monitor [--json]",
         "load, memory, disk, battery and network over half a second, and the largest memory users", runMonitor},
        {"updates", "updates [--json] [--offline]",
         "what update feeds, the store, Homebrew and Flatpak remotes offer for the installed applications; "
         "--offline reads only caches and local data",
         runUpdates},
    };
    return all;
}

} // namespace ZephraneCli
