// Drives the removal engine from the command line for the removal benchmark; never built into
// the product. Usage:
//   RemoveBench permanent|trash PATH...
//   RemoveBench permanent-children|trash-children FOLDER   (each entry of FOLDER)
// The home is $HOME; exit status 1 when any item was not removed.
#include "CleanerCore/Removal/Cleaner.hpp"
#include "CleanerCore/Removal/SafetyGuard.hpp"

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string_view>

using namespace CleanerCore;

int main(int argc, char** argv) {
    const char* home = std::getenv("HOME");
    if (argc < 3 || !home) {
        std::cerr << "usage: RemoveBench permanent|trash[-children] PATH...\n";
        return 2;
    }
    std::string_view verb = argv[1];
    const bool children = verb.ends_with("-children");
    if (children)
        verb.remove_suffix(std::string_view("-children").size());
    const auto mode = fromRaw<RemovalMode>(verb);
    if (!mode) {
        std::cerr << "unknown mode " << verb << "\n";
        return 2;
    }
    std::vector<CleanupItem> items;
    for (int i = 2; i < argc; ++i) {
        if (!children) {
            items.push_back({URL::file(argv[i]), 0, std::nullopt, true});
            continue;
        }
        for (const auto& entry : std::filesystem::directory_iterator(argv[i]))
            items.push_back({URL::file(entry.path().string()), 0, std::nullopt, true});
    }
    const RemovalReport report =
        Cleaner(*mode, URL::file(home), SafetyGuard::runningAppBundle()).remove(items);
    for (const RemovalFailure& failure : report.failures)
        std::cerr << failure.url.path() << ": " << failure.reason << "\n";
    return report.failures.empty() ? 0 : 1;
}
