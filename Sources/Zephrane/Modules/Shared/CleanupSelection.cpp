#include "Modules/Shared/CleanupSelection.hpp"

#include <algorithm>

using CleanerCore::URL;

void CleanupSelection::set(std::unordered_set<URL> urls) {
    if (urls == chosen)
        return;
    chosen = std::move(urls);
    emit changed();
}

void CleanupSelection::setSelected(const URL& url, bool on) {
    if (on ? chosen.insert(url).second : chosen.erase(url) > 0)
        emit changed();
}

void CleanupSelection::setSelected(std::span<const CleanerCore::CleanupItem> items, bool on) {
    bool any = false;
    for (const CleanerCore::CleanupItem& item : items)
        any |= on ? chosen.insert(item.url).second : chosen.erase(item.url) > 0;
    if (any)
        emit changed();
}

void CleanupSelection::dropIf(const std::function<bool(const URL&)>& drop) {
    if (std::erase_if(chosen, drop) > 0)
        emit changed();
}

CleanupSelection::State CleanupSelection::stateOf(std::span<const CleanerCore::CleanupItem> items) const {
    const auto on = std::ranges::count_if(items, [this](const auto& item) { return chosen.contains(item.url); });
    const auto all = static_cast<std::ptrdiff_t>(items.size());
    return {on > 0 && on == all, on > 0 && on < all};
}

bool CleanupSelection::isSelected(const QString& path) const {
    return chosen.contains(URL::file(path.toStdString()));
}

void CleanupSelection::setSelected(const QString& path, bool on) {
    setSelected(URL::file(path.toStdString()), on);
}
