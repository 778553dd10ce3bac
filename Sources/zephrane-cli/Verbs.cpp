#include "Cli.hpp"

namespace ZephraneCli {

int runJunk(const std::vector<std::string>& words, std::ostream& out, std::ostream& err);
int runSize(const std::vector<std::string>& words, std::ostream& out, std::ostream& err);
int runGuard(const std::vector<std::string>& words, std::ostream& out, std::ostream& err);
int runTree(const std::vector<std::string>& words, std::ostream& out, std::ostream& err);
int runTrash(const std::vector<std::string>& words, std::ostream& out, std::ostream& err);

// Each verb lives in a file of its own (<Name>Verb.cpp) and is listed here once.
const std::vector<Verb>& verbs() {
    static const std::vector<Verb> all{
        {"size", "size PATH... [--json]", "allocated bytes on disk of each path, folders with all they hold",
         runSize},
        {"guard", "guard PATH...", "whether removal would be allowed for each path, and what it would act on",
         runGuard},
        {"junk", "junk [--json]", "what each junk rule finds in the home folder, largest items first",
         runJunk},
        {"tree", "tree PATH [--json] [--min-node-size BYTES] [--keep N]",
         "what takes up the space below PATH, folder by folder, small items summed up", runTree},
        {"trash", "trash [--json]", "each trash folder of the user, its items with their sizes and dates",
         runTrash},
    };
    return all;
}

} // namespace ZephraneCli
