// libFuzzer target: any bytes as a bundle's Info.plist (XML or binary).
#include "CleanerCore/Platform/InfoPlist.hpp"

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    if (const auto plist = CleanerCore::Platform::InfoPlist::parse(bytes))
        (void)plist->text("CFBundleIdentifier");
    return 0;
}
