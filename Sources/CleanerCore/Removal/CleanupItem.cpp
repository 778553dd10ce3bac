#include "CleanerCore/Removal/CleanupItem.hpp"

#include <numeric>

namespace CleanerCore {

std::int64_t totalSize(std::span<const CleanupItem> items) {
    return std::accumulate(items.begin(), items.end(), std::int64_t{0},
                           [](std::int64_t sum, const CleanupItem& item) { return sum + item.size; });
}

} // namespace CleanerCore

std::size_t
std::hash<CleanerCore::CleanupItem>::operator()(const CleanerCore::CleanupItem& item) const noexcept {
    std::size_t seed = std::hash<CleanerCore::URL>{}(item.url);
    const auto mix = [&seed](std::size_t value) {
        seed ^= value + 0x9e3779b97f4a7c15ull + (seed << 6) + (seed >> 2);
    };
    mix(std::hash<std::int64_t>{}(item.size));
    mix(item.note ? std::hash<std::string>{}(*item.note) : 0x51u);
    mix(item.selectedByDefault ? 1u : 2u);
    return seed;
}
