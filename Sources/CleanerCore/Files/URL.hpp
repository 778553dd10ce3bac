#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace CleanerCore {

// A location: a file of the local file system (kept as its path) or any other URL (kept as its text).
// File URLs compare and hash by their standardized path, others by their full text.
class URL {
public:
    URL() = default;

    // A file URL for `path` as written (not made absolute, links not resolved).
    static URL file(std::string path);
    // "file:///a%20b" becomes the file URL of "/a b"; any other text is kept as a non-file URL.
    static URL parse(std::string_view text);

    bool isFile() const { return fileURL; }
    bool empty() const { return text.empty(); }
    // The file path; for another URL, its path part ("/x" of "https://host/x?q").
    std::string path() const;
    // The URL as text: "file://" + the percent-encoded path for files.
    std::string absoluteString() const;
    std::string scheme() const;

    // "." and ".." taken out and repeated or trailing slashes dropped, lexically (nothing on disk).
    URL standardized() const;
    std::string lastPathComponent() const;
    // The text after the last dot of the last component; empty for none or a leading dot only.
    std::string pathExtension() const;
    URL appending(std::string_view component) const;
    URL deletingLastPathComponent() const;
    // Whether this location lies within `container` or is it, by standardized paths; everything is
    // inside "/".
    bool isInside(const URL& container) const;

    bool operator==(const URL& other) const;

private:
    std::string text; // the path of a file URL, the whole text otherwise
    bool fileURL = false;
};

// The non-empty components of a path, in order ("/a//b/" gives "a", "b").
std::vector<std::string_view> pathComponents(std::string_view path);
// Lexical clean-up of a path: "." and ".." resolved, "//" collapsed, trailing "/" dropped.
std::string standardizedPath(std::string_view path);
// The same test on paths that are already standardized, for callers that test many of them.
bool pathIsInside(std::string_view path, std::string_view container);
// RFC 3986 percent-encoding of a path: unreserved characters and "/" stay, every other byte is %XX.
std::string percentEncodedPath(std::string_view path);
// The inverse; malformed escapes are kept as they stand.
std::string percentDecoded(std::string_view text);

} // namespace CleanerCore

template <> struct std::hash<CleanerCore::URL> {
    std::size_t operator()(const CleanerCore::URL& url) const noexcept;
};
