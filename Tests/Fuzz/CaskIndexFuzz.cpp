// libFuzzer target: any bytes as Homebrew's cask index and as the compact cache made from it.
#include "CleanerCore/Updates/HomebrewCask.hpp"

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const auto casks = CleanerCore::HomebrewCask::index(bytes);
    for (const auto& cask : casks) {
        if (cask.appNames.empty())
            __builtin_trap(); // casks without an app are promised to be left out
        (void)cask.comparableVersion();
    }
    if (!casks.empty() && CleanerCore::HomebrewCask::decode(CleanerCore::HomebrewCask::encode(casks)) != casks)
        __builtin_trap(); // the cache must read back what was written
    (void)CleanerCore::HomebrewCask::decode(bytes);
    return 0;
}
