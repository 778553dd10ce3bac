#include "Cli.hpp"

#include <iostream>

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    return ZephraneCli::run(arguments, std::cout, std::cerr);
}
