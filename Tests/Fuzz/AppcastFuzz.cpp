// libFuzzer target: any bytes as an update feed, then the choices made from its items.
#include "CleanerCore/Updates/Appcast.hpp"

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const auto items = CleanerCore::Appcast::items(bytes);
    for (const auto& item : items) {
        for (const auto& link : item.notesLinks)
            if (link.url.scheme() != "http" && link.url.scheme() != "https")
                __builtin_trap(); // a feed must never hand out another scheme
        (void)item.notesURL({"pt-BR", "en"});
    }
    if (const auto best = CleanerCore::Appcast::bestItem(items, {6, 1, 0}))
        if (best->channel || !best->displayVersion())
            __builtin_trap();
    return 0;
}
