#include "CleanerCore/Apps/AppBundleInfo.hpp"

#include "CleanerCore/Apps/BundleIDMatcher.hpp"
#include "CleanerCore/Platform/InfoPlist.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"

#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>

namespace CleanerCore {

namespace {

bool isWhiteSpace(unsigned char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f';
}

// RFC 3986: a scheme is a letter and then letters, digits, "+", "-", "."; the rest holds no
// white space or control character, and something follows the scheme.
bool isWellFormed(std::string_view text) {
    const std::size_t colon = text.find(':');
    if (colon == 0 || colon == std::string_view::npos || colon + 1 == text.size())
        return false;
    const auto schemeCharacter = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '+' ||
               c == '-' || c == '.';
    };
    const char first = text.front();
    if (!((first >= 'a' && first <= 'z') || (first >= 'A' && first <= 'Z')))
        return false;
    if (!std::all_of(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(colon), schemeCharacter))
        return false;
    return std::none_of(text.begin(), text.end(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte <= 0x20 || byte == 0x7f || c == '"' || c == '<' || c == '>' || c == '\\' || c == '^' ||
               c == '`' || c == '{' || c == '|' || c == '}';
    });
}

} // namespace

std::optional<URL> AppBundleInfo::feedURLFrom(std::string_view text) {
    while (!text.empty() && isWhiteSpace(static_cast<unsigned char>(text.front())))
        text.remove_prefix(1);
    while (!text.empty() && isWhiteSpace(static_cast<unsigned char>(text.back())))
        text.remove_suffix(1);
    if (!isWellFormed(text))
        return std::nullopt;
    const std::string scheme = BundleIDMatcher::lowercased(text.substr(0, text.find(':')));
    if (scheme != "https" && scheme != "http")
        return std::nullopt;
    return URL::parse(text);
}

std::optional<AppBundleInfo> AppBundleInfo::fromBundle(const URL& url) {
    const std::string path = url.path();
    const auto plist = Platform::InfoPlist::read(path);
    if (!plist)
        return std::nullopt;
    std::string name = url.lastPathComponent();
    if (const std::string extension = url.pathExtension(); !extension.empty())
        name.erase(name.size() - extension.size() - 1);
    AppBundleInfo info{url,
                       std::move(name),
                       plist->text("CFBundleIdentifier"),
                       plist->text("CFBundleShortVersionString"),
                       plist->text("CFBundleVersion"),
                       std::nullopt,
                       false};
    if (const auto feed = plist->text("SUFeedURL"))
        info.feedURL = feedURLFrom(*feed);
    struct stat receipt {};
    info.hasAppStoreReceipt =
        Platform::SystemCalls::current().fstatat(AT_FDCWD, (path + "/Contents/_MASReceipt/receipt").c_str(),
                                                 &receipt, 0) == 0;
    return info;
}

} // namespace CleanerCore

std::size_t
std::hash<CleanerCore::AppBundleInfo>::operator()(const CleanerCore::AppBundleInfo& info) const noexcept {
    std::size_t seed = std::hash<CleanerCore::URL>{}(info.url);
    const auto mix = [&seed](std::size_t value) {
        seed ^= value + 0x9e3779b97f4a7c15ULL + (seed << 6) + (seed >> 2);
    };
    mix(std::hash<std::optional<std::string>>{}(info.bundleID));
    mix(std::hash<std::optional<std::string>>{}(info.shortVersion));
    mix(std::hash<std::optional<std::string>>{}(info.buildVersion));
    mix(info.hasAppStoreReceipt);
    return seed;
}
