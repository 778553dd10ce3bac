#pragma once

#include <string>
#include <string_view>
#include <vector>

// The text rules by which names found in the Library are tied to bundle identifiers.
namespace CleanerCore::BundleIDMatcher {

// The identifier a Library entry was named after: a ten-character team prefix ("ABCDE12345.")
// dropped, lower-cased, "group." dropped, then the first matching one of ".plist", ".savedstate",
// ".binarycookies", ".lockfile", ".sfl2", ".sfl3", ".desktop" dropped.
std::string normalize(std::string_view name);

// `entry` is `owner` or lies below it ("com.foo" owns "com.foo.helper", not "com.foobar").
bool entry(std::string_view entry, std::string_view belongsTo);

// Three or more dot-separated parts, a first part of 2 to 6 ASCII letters, and no part of 16 or
// more characters made only of hexadecimal digits and dashes (generated names).
bool looksLikeBundleID(std::string_view text);

// The first two parts: "com.foo.bar" gives "com.foo", "foo" gives "foo".
std::string vendor(std::string_view identifier);

// The non-empty parts between dots.
std::vector<std::string_view> parts(std::string_view identifier);

// Lower case by Unicode's rules (names can hold any letter), which is what identifiers are compared in.
std::string lowercased(std::string_view text);

} // namespace CleanerCore::BundleIDMatcher
