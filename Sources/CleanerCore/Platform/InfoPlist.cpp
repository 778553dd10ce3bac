#include "CleanerCore/Platform/InfoPlist.hpp"

#include "CleanerCore/Platform/SmallFile.hpp"

#include <plist/plist.h>

#include <cstdint>
#include <cstdlib>
#include <limits>
#include <memory>

namespace CleanerCore::Platform {

namespace {

// A real Info.plist is a few kilobytes; anything far larger is not worth parsing.
constexpr std::size_t maximumSize = 4 << 20;

} // namespace

std::optional<std::string> InfoPlist::text(std::string_view key) const {
    const auto found = texts.find(key);
    if (found == texts.end())
        return std::nullopt;
    return found->second;
}

std::optional<InfoPlist> InfoPlist::parse(std::string_view bytes) {
    if (bytes.empty() || bytes.size() > maximumSize)
        return std::nullopt;
    plist_t root = nullptr;
    plist_from_memory(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &root);
    const std::unique_ptr<void, decltype(&plist_free)> owner(root, &plist_free);
    if (root == nullptr || plist_get_node_type(root) != PLIST_DICT)
        return std::nullopt;

    InfoPlist plist;
    plist_dict_iter it = nullptr;
    plist_dict_new_iter(root, &it);
    for (;;) {
        char* key = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(root, it, &key, &value);
        if (key == nullptr)
            break;
        const std::unique_ptr<char, decltype(&std::free)> keyOwner(key, &std::free);
        if (value == nullptr || plist_get_node_type(value) != PLIST_STRING)
            continue;
        std::uint64_t length = 0;
        const char* text = plist_get_string_ptr(value, &length);
        if (text != nullptr)
            plist.texts.emplace(key, std::string(text, length));
    }
    std::free(it);
    return plist;
}

std::optional<InfoPlist> InfoPlist::read(const std::string& bundlePath) {
    const auto bytes = readSmallFile(bundlePath + "/Contents/Info.plist", maximumSize + 1);
    if (!bytes)
        return std::nullopt;
    return parse(*bytes);
}

} // namespace CleanerCore::Platform
