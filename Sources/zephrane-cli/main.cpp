#include "CheckedOutput.hpp"
#include "Cli.hpp"
#include "MessageLocale.hpp"

#include "CleanerCore/Display/CoreL10n.hpp"

#include <cerrno>
#include <cstring>
#include <iostream>
#include <unistd.h>

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    // Texts the engine makes itself (such as the name of a folder's small items) follow the
    // environment's language here, as they follow the application's choice in the application.
    CleanerCore::CoreL10n::setCurrentLanguage(ZephraneCli::messageLocale());
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    ZephraneCli::CheckedOutput output(STDOUT_FILENO);
    std::ostream out(&output);
    const ZephraneCli::Streams streams{out, std::cerr, ::isatty(STDOUT_FILENO) == 1, ::isatty(STDERR_FILENO) == 1};
    int status = ZephraneCli::run(arguments, streams);
    // A failed write was reported already; a failure only the close reveals (a file system that
    // writes late) still makes the report incomplete.
    if (!output.close() && output.error() == 0 && errno != EBADF) {
        std::cerr << "zephrane-cli: cannot write the report: " << std::strerror(errno) << "\n";
        status = 1;
    } else if (output.error() != 0 && status == 0) {
        status = 1;
    }
    return status;
}
