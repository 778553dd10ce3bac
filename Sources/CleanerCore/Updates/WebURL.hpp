#pragma once

#include "CleanerCore/Files/URL.hpp"

#include <optional>
#include <string_view>

namespace CleanerCore::WebURL {

// `text` when it is a well-formed absolute URL of any scheme, in libcurl's normalised spelling.
std::optional<URL> parse(std::string_view text);

// A link taken from a feed: trimmed, percent-encoded when it does not parse as it stands, and kept
// only when its scheme is http or https, so that outside data never hands out a file: or
// custom-scheme link.
std::optional<URL> httpLink(std::string_view text);

} // namespace CleanerCore::WebURL
