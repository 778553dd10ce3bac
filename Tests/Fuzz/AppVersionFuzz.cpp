// libFuzzer target: two version texts from outside parties; tokens and the order between them.
#include "CleanerCore/Updates/AppVersion.hpp"

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const std::size_t cut = bytes.find('\0');
    const std::string_view a = bytes.substr(0, cut);
    const std::string_view b = cut == std::string_view::npos ? std::string_view{} : bytes.substr(cut + 1);
    for (const auto& token : CleanerCore::AppVersion::tokens(a))
        if (token.value.empty())
            __builtin_trap();
    // The order must be antisymmetric and every text the same as itself.
    if (CleanerCore::AppVersion::compare(a, b) != (0 <=> CleanerCore::AppVersion::compare(b, a)))
        __builtin_trap();
    if (CleanerCore::AppVersion::compare(a, a) != 0)
        __builtin_trap();
    (void)CleanerCore::AppVersion::isUpdate(std::string(a), std::string(b), std::string(b), std::string(a));
    return 0;
}
