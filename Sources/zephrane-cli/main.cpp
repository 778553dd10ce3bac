#include "Cli.hpp"
#include "MessageLocale.hpp"

#include "CleanerCore/Display/CoreL10n.hpp"

#include <iostream>

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    // Texts the engine makes itself (such as the name of a folder's small items) follow the
    // environment's language here, as they follow the application's choice in the application.
    CleanerCore::CoreL10n::setCurrentLanguage(ZephraneCli::messageLocale());
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    return ZephraneCli::run(arguments, std::cout, std::cerr);
}
