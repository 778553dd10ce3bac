// libFuzzer target: any bytes as AppStream data (a Flatpak's appdata, a remote's collection) and
// as GNOME Shell's application_state, the two XML documents the app inventory reads.
#include "CleanerCore/Platform/AppStream.hpp"
#include "CleanerCore/Platform/LastUsed.hpp"

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    for (const auto& component : CleanerCore::Platform::parseAppStream(bytes))
        if (component.id.empty())
            __builtin_trap(); // components without an id are promised to be left out
    (void)CleanerCore::Platform::gnomeShellLastSeen(bytes);
    return 0;
}
