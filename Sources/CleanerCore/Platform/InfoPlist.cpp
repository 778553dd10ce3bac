#include "CleanerCore/Platform/InfoPlist.hpp"

#include "CleanerCore/Platform/SmallFile.hpp"

#include <plist/plist.h>

#include <cstdint>

namespace CleanerCore::Platform {

namespace {

// A real Info.plist is a few kilobytes; anything far larger is not worth parsing.
constexpr std::size_t maximumSize = 4 << 20;

} // namespace

std::optional<std::string> InfoPlist::text(const std::string& key) const {
    const plist_t node = plist_dict_get_item(root.get(), key.c_str());
    if (node == nullptr || plist_get_node_type(node) != PLIST_STRING)
        return std::nullopt;
    std::uint64_t length = 0;
    const char* value = plist_get_string_ptr(node, &length);
    if (value == nullptr)
        return std::nullopt;
    return std::string(value, length);
}

std::optional<InfoPlist> InfoPlist::parse(std::string_view bytes) {
    if (bytes.empty() || bytes.size() > maximumSize)
        return std::nullopt;
    plist_t parsed = nullptr;
    plist_from_memory(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &parsed);
    std::shared_ptr<void> owner(parsed, &plist_free);
    if (parsed == nullptr || plist_get_node_type(parsed) != PLIST_DICT)
        return std::nullopt;
    InfoPlist plist;
    plist.root = std::move(owner);
    return plist;
}

std::optional<InfoPlist> InfoPlist::read(const std::string& bundlePath) {
    const auto bytes = readSmallFile(bundlePath + "/Contents/Info.plist", maximumSize + 1);
    if (!bytes)
        return std::nullopt;
    return parse(*bytes);
}

} // namespace CleanerCore::Platform
