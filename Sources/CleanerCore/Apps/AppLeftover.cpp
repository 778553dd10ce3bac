#include "CleanerCore/Apps/AppLeftover.hpp"

std::size_t
std::hash<CleanerCore::AppLeftover>::operator()(const CleanerCore::AppLeftover& leftover) const noexcept {
    return std::hash<CleanerCore::URL>{}(leftover.url) ^ (static_cast<std::size_t>(leftover.kind) << 3) ^
           (leftover.caution ? static_cast<std::size_t>(*leftover.caution) + 1 : 0);
}
