#include "Cli.hpp"

namespace ZephraneCli {

// Each verb lives in a file of its own (<Name>Verb.cpp) and is listed here once.
const std::vector<Verb>& verbs() {
    static const std::vector<Verb> all{};
    return all;
}

} // namespace ZephraneCli
