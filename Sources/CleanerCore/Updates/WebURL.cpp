#include "CleanerCore/Updates/WebURL.hpp"

#include <curl/curl.h>

#include <algorithm>
#include <memory>
#include <string>

namespace CleanerCore::WebURL {
namespace {

struct ParsedURL {
    std::string text;
    std::string scheme;
};

std::optional<ParsedURL> parseWithCurl(std::string_view text) {
    if (text.empty() || text.find('\0') != std::string_view::npos)
        return std::nullopt;
    const std::unique_ptr<CURLU, decltype(&curl_url_cleanup)> handle(curl_url(), &curl_url_cleanup);
    if (!handle)
        return std::nullopt;
    const std::string input(text);
    if (curl_url_set(handle.get(), CURLUPART_URL, input.c_str(), CURLU_NON_SUPPORT_SCHEME) != CURLUE_OK)
        return std::nullopt;
    ParsedURL parsed;
    for (auto [part, target] : {std::pair{CURLUPART_URL, &parsed.text}, std::pair{CURLUPART_SCHEME, &parsed.scheme}}) {
        char* value = nullptr;
        if (curl_url_get(handle.get(), part, &value, 0) != CURLUE_OK)
            return std::nullopt;
        *target = value;
        curl_free(value);
    }
    std::transform(parsed.scheme.begin(), parsed.scheme.end(), parsed.scheme.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return parsed;
}

// The characters a URL query may hold as they are; everything else becomes %XX.
bool allowedInQuery(unsigned char c) {
    constexpr std::string_view punctuation = "!$&'()*+,-./:;=?@_~";
    return std::isalnum(c) != 0 || punctuation.find(static_cast<char>(c)) != std::string_view::npos;
}

std::string percentEncodedForQuery(std::string_view text) {
    constexpr char hex[] = "0123456789ABCDEF";
    std::string out;
    out.reserve(text.size());
    for (const char ch : text) {
        const auto c = static_cast<unsigned char>(ch);
        if (c < 0x80 && allowedInQuery(c)) {
            out.push_back(ch);
        } else {
            out.push_back('%');
            out.push_back(hex[c >> 4]);
            out.push_back(hex[c & 15]);
        }
    }
    return out;
}

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view space = " \t\r\n\v\f";
    const std::size_t first = text.find_first_not_of(space);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(space) - first + 1);
}

} // namespace

std::optional<URL> parse(std::string_view text) {
    const auto parsed = parseWithCurl(text);
    if (!parsed)
        return std::nullopt;
    return URL::parse(parsed->text);
}

std::optional<URL> httpLink(std::string_view text) {
    const std::string_view link = trimmed(text);
    auto parsed = parseWithCurl(link);
    if (!parsed)
        parsed = parseWithCurl(percentEncodedForQuery(link));
    if (!parsed || (parsed->scheme != "http" && parsed->scheme != "https"))
        return std::nullopt;
    return URL::parse(parsed->text);
}

} // namespace CleanerCore::WebURL
