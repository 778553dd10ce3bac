// Empties one trash folder through TrashBin, for the trash benchmark; never built into the
// product. Usage: EmptyTrashBench TRASH_FOLDER   (the folder holding files/ and info/)
// The home given to the removal guard is $HOME; exit status 1 when anything stayed.
#include "CleanerCore/Trash/TrashBin.hpp"

#include <cstdlib>
#include <iostream>

using namespace CleanerCore;

int main(int argc, char** argv) {
    const char* home = std::getenv("HOME");
    if (argc != 2 || !home) {
        std::cerr << "usage: EmptyTrashBench TRASH_FOLDER\n";
        return 2;
    }
    const RemovalReport report = TrashBin(URL::file(argv[1]), URL::file(home)).empty();
    for (const RemovalFailure& failure : report.failures)
        std::cerr << failure.url.path() << ": " << failure.reason << "\n";
    return report.failures.empty() ? 0 : 1;
}
