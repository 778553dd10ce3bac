#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// How names and paths go into JSON without losing a byte. A JSON string holds Unicode text, but a
// Linux file name is any bytes but "/" and NUL. So a name is written as a string, with U+FFFD where
// its bytes are not UTF-8, and when (only when) that was needed, a second field beside it, named
// after the first with "Bytes" appended ("name" and "nameBytes", "path" and "pathBytes"), holds
// its exact bytes in base64 (RFC 4648, with padding).
namespace ZephraneCli::JsonText {

// Length of the valid UTF-8 sequence that starts text[i] with a byte >= 0x80, or 0 when invalid
// (stray continuation, overlong form, surrogate, beyond U+10FFFF, truncated).
std::size_t sequenceLength(std::string_view text, std::size_t i);
bool isUtf8(std::string_view text);

// `text` as a JSON string literal, quotes included; each byte that is not UTF-8 becomes U+FFFD.
void appendString(std::string& out, std::string_view text);

// `"key":"text"`, and `,"keyBytes":"base64"` when `text` is not UTF-8.
void appendName(std::string& out, std::string_view key, std::string_view text);

std::string base64(std::string_view bytes);

// The base64 of `text` when it is not UTF-8: the value of the "…Bytes" field.
std::optional<std::string> exactBytes(std::string_view text);

} // namespace ZephraneCli::JsonText
