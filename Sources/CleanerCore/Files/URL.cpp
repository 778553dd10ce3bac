#include "CleanerCore/Files/URL.hpp"

#include <vector>

namespace CleanerCore {
namespace {

constexpr std::string_view kFileScheme = "file://";

bool isUnreserved(unsigned char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' ||
           c == '_' || c == '.' || c == '~';
}

int hexValue(char c) {
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

bool startsWithCaseless(std::string_view text, std::string_view prefix) {
    if (text.size() < prefix.size())
        return false;
    for (std::size_t i = 0; i < prefix.size(); ++i) {
        char c = text[i];
        if (c >= 'A' && c <= 'Z')
            c = char(c - 'A' + 'a');
        if (c != prefix[i])
            return false;
    }
    return true;
}

} // namespace

URL URL::file(std::string path) {
    URL url;
    url.text = std::move(path);
    url.fileURL = true;
    return url;
}

URL URL::parse(std::string_view text) {
    if (startsWithCaseless(text, kFileScheme)) {
        std::string_view rest = text.substr(kFileScheme.size());
        // An empty host or "localhost" names this machine; the path starts at the next slash.
        const std::size_t slash = rest.find('/');
        const std::string_view host = rest.substr(0, slash);
        if (slash != std::string_view::npos && (host.empty() || host == "localhost")) {
            std::string_view path = rest.substr(slash);
            path = path.substr(0, path.find_first_of("?#"));
            return file(percentDecoded(path));
        }
    }
    URL url;
    url.text = std::string(text);
    return url;
}

std::string URL::path() const {
    if (fileURL)
        return text;
    std::string_view rest = text;
    const std::size_t colon = rest.find(':');
    if (colon != std::string_view::npos)
        rest.remove_prefix(colon + 1);
    if (rest.starts_with("//")) {
        rest.remove_prefix(2);
        const std::size_t slash = rest.find_first_of("/?#");
        rest = slash == std::string_view::npos ? std::string_view{} : rest.substr(slash);
    }
    return percentDecoded(rest.substr(0, rest.find_first_of("?#")));
}

std::string URL::absoluteString() const {
    return fileURL ? std::string(kFileScheme) + percentEncodedPath(text) : text;
}

std::string URL::scheme() const {
    if (fileURL)
        return "file";
    const std::size_t colon = text.find(':');
    return colon == std::string::npos ? std::string{} : text.substr(0, colon);
}

URL URL::standardized() const {
    return fileURL ? file(standardizedPath(text)) : *this;
}

std::string URL::lastPathComponent() const {
    std::string path = this->path();
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    if (path == "/")
        return path;
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

std::string URL::pathExtension() const {
    const std::string name = lastPathComponent();
    const std::size_t dot = name.rfind('.');
    if (dot == std::string::npos || dot == 0)
        return {};
    return name.substr(dot + 1);
}

URL URL::appending(std::string_view component) const {
    std::string path = text;
    if (!path.empty() && path.back() != '/')
        path += '/';
    path += component;
    URL url = *this;
    url.text = std::move(path);
    return url;
}

URL URL::deletingLastPathComponent() const {
    std::string path = standardizedPath(text);
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos)
        path = ".";
    else
        path = slash == 0 ? "/" : path.substr(0, slash);
    URL url = *this;
    url.text = std::move(path);
    return url;
}

bool URL::isInside(const URL& container) const {
    return pathIsInside(standardizedPath(path()), standardizedPath(container.path()));
}

bool URL::operator==(const URL& other) const {
    if (fileURL != other.fileURL)
        return false;
    return fileURL ? standardizedPath(text) == standardizedPath(other.text) : text == other.text;
}

bool pathIsInside(std::string_view path, std::string_view container) {
    if (path == container || container == "/")
        return true;
    if (!path.starts_with(container))
        return false;
    // "/a/bc" is not inside "/a/b": the container must end at a separator.
    return container.ends_with('/') || (path.size() > container.size() && path[container.size()] == '/');
}

std::vector<std::string_view> pathComponents(std::string_view path) {
    std::vector<std::string_view> parts;
    std::size_t start = 0;
    while (start <= path.size()) {
        std::size_t end = path.find('/', start);
        if (end == std::string_view::npos)
            end = path.size();
        if (end > start)
            parts.push_back(path.substr(start, end - start));
        start = end + 1;
    }
    return parts;
}

std::string standardizedPath(std::string_view path) {
    const bool absolute = path.starts_with('/');
    std::vector<std::string_view> parts;
    for (const std::string_view part : pathComponents(path)) {
        if (part == "..") {
            if (!parts.empty() && parts.back() != "..")
                parts.pop_back();
            else if (!absolute)
                parts.push_back(part); // a relative path may climb above its start
        } else if (part != ".") {
            parts.push_back(part);
        }
    }
    std::string out = absolute ? "/" : "";
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (i > 0)
            out += '/';
        out += parts[i];
    }
    if (out.empty())
        out = ".";
    return out;
}

std::string percentEncodedPath(std::string_view path) {
    static constexpr char kHex[] = "0123456789ABCDEF";
    std::string out;
    out.reserve(path.size());
    for (const char c : path) {
        const auto byte = static_cast<unsigned char>(c);
        if (isUnreserved(byte) || byte == '/') {
            out += c;
        } else {
            out += '%';
            out += kHex[byte >> 4];
            out += kHex[byte & 0xF];
        }
    }
    return out;
}

std::string percentDecoded(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '%' && i + 2 < text.size() && hexValue(text[i + 1]) >= 0 &&
            hexValue(text[i + 2]) >= 0) {
            out += char(hexValue(text[i + 1]) * 16 + hexValue(text[i + 2]));
            i += 2;
        } else {
            out += text[i];
        }
    }
    return out;
}

} // namespace CleanerCore

std::size_t std::hash<CleanerCore::URL>::operator()(const CleanerCore::URL& url) const noexcept {
    const std::string key = url.isFile() ? CleanerCore::standardizedPath(url.path()) : url.absoluteString();
    return std::hash<std::string>{}(key) ^ (url.isFile() ? 0x9e3779b97f4a7c15ull : 0);
}
