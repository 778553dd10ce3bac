// libFuzzer target: any bytes as the HTML notes of a feed item.
#include "CleanerCore/Updates/ReleaseNotesText.hpp"

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const std::string text = CleanerCore::ReleaseNotesText::plainText(bytes);
    if (text.find("\n\n\n") != std::string::npos || text.starts_with('\n') || text.ends_with('\n'))
        __builtin_trap(); // empty lines are collapsed and trimmed
    (void)CleanerCore::ReleaseNotesText::decodeEntities(bytes);
    return 0;
}
