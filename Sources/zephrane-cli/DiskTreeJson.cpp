#include "DiskTreeJson.hpp"

#include <charconv>
#include <ostream>

namespace ZephraneCli {
namespace {

constexpr std::size_t flushAt = 256 * 1024;

// Length of the valid UTF-8 sequence that starts text[i] with a byte >= 0x80, or 0 when invalid
// (stray continuation, overlong form, surrogate, beyond U+10FFFF, truncated).
std::size_t sequenceLength(std::string_view text, std::size_t i) {
    const auto byte = [&](std::size_t k) { return static_cast<unsigned char>(text[k]); };
    const unsigned char lead = byte(i);
    std::size_t length;
    unsigned char low = 0x80, high = 0xBF; // allowed range of the second byte
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        if (lead == 0xE0)
            low = 0xA0;
        else if (lead == 0xED)
            high = 0x9F;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        if (lead == 0xF0)
            low = 0x90;
        else if (lead == 0xF4)
            high = 0x8F;
    } else {
        return 0;
    }
    if (i + length > text.size() || byte(i + 1) < low || byte(i + 1) > high)
        return 0;
    for (std::size_t k = 2; k < length; ++k)
        if (byte(i + k) < 0x80 || byte(i + k) > 0xBF)
            return 0;
    return length;
}

void appendNumber(std::string& out, std::int64_t value) {
    char digits[24];
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    out.append(digits, end);
}

} // namespace

DiskTreeJson::DiskTreeJson(std::ostream& out) : out(out) {
    buffer.reserve(flushAt + 64 * 1024);
}

DiskTreeJson::~DiskTreeJson() {
    if (!buffer.empty())
        out.write(buffer.data(), static_cast<std::streamsize>(buffer.size()));
}

void DiskTreeJson::write(const CleanerCore::DiskNode& root) {
    node(root);
    buffer += '\n';
    out.write(buffer.data(), static_cast<std::streamsize>(buffer.size()));
    buffer.clear();
    out.flush();
}

void DiskTreeJson::node(const CleanerCore::DiskNode& node) {
    scratch.clear();
    node.appendPath(scratch);
    buffer += "{\"path\":";
    appendString(buffer, scratch);
    buffer += ",\"name\":";
    appendString(buffer, node.name());
    buffer += ",\"size\":";
    appendNumber(buffer, node.size());
    buffer += ",\"itemCount\":";
    appendNumber(buffer, node.itemCount());
    buffer += node.isDirectory() ? ",\"isDirectory\":true" : ",\"isDirectory\":false";
    buffer += node.isAggregate() ? ",\"isAggregate\":true" : ",\"isAggregate\":false";
    buffer += ",\"children\":[";
    flushIfFull();
    bool first = true;
    for (const CleanerCore::DiskNode::Pointer& child : node.children()) {
        if (!first)
            buffer += ',';
        first = false;
        this->node(*child);
    }
    buffer += "]}";
}

void DiskTreeJson::flushIfFull() {
    if (buffer.size() < flushAt)
        return;
    out.write(buffer.data(), static_cast<std::streamsize>(buffer.size()));
    buffer.clear();
}

void DiskTreeJson::appendString(std::string& out, std::string_view text) {
    static constexpr char hex[] = "0123456789abcdef";
    out += '"';
    std::size_t i = 0;
    while (i < text.size()) {
        // Copy the longest run that needs no escaping in one go.
        std::size_t run = i;
        while (run < text.size()) {
            const auto c = static_cast<unsigned char>(text[run]);
            if (c < 0x20 || c >= 0x80 || c == '"' || c == '\\')
                break;
            ++run;
        }
        out.append(text.substr(i, run - i));
        i = run;
        if (i == text.size())
            break;
        const auto c = static_cast<unsigned char>(text[i]);
        if (c >= 0x80) {
            const std::size_t length = sequenceLength(text, i);
            if (length == 0) {
                out += "\xEF\xBF\xBD";
                ++i;
            } else {
                out.append(text.substr(i, length));
                i += length;
            }
            continue;
        }
        switch (c) {
        case '"':
            out += "\\\"";
            break;
        case '\\':
            out += "\\\\";
            break;
        case '\n':
            out += "\\n";
            break;
        case '\t':
            out += "\\t";
            break;
        case '\r':
            out += "\\r";
            break;
        default:
            out += "\\u00";
            out += hex[c >> 4];
            out += hex[c & 0xF];
        }
        ++i;
    }
    out += '"';
}

} // namespace ZephraneCli
