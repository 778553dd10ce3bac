// libFuzzer target: any bytes as the store's lookup answer for an installed app.
#include "CleanerCore/Updates/StoreLookup.hpp"

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    CleanerCore::AppBundleInfo info;
    info.url = CleanerCore::URL::file("/Applications/Example.app");
    info.name = "Example";
    info.bundleID = "com.example.App";
    info.shortVersion = "1.2 (5)";
    if (const auto update = CleanerCore::StoreLookup::update(info, bytes))
        if (update->source != CleanerCore::AppUpdateSource::appStore || update->downloadURL)
            __builtin_trap(); // the store never hands out a download
    return 0;
}
