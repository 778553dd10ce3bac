#include "JsonText.hpp"

namespace ZephraneCli::JsonText {

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

bool isUtf8(std::string_view text) {
    for (std::size_t i = 0; i < text.size();) {
        if (static_cast<unsigned char>(text[i]) < 0x80) {
            ++i;
            continue;
        }
        const std::size_t length = sequenceLength(text, i);
        if (length == 0)
            return false;
        i += length;
    }
    return true;
}

void appendString(std::string& out, std::string_view text) {
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

void appendName(std::string& out, std::string_view key, std::string_view text) {
    out += '"';
    out += key;
    out += "\":";
    appendString(out, text);
    if (auto bytes = exactBytes(text)) {
        out += ",\"";
        out += key;
        out += "Bytes\":\"";
        out += *bytes;
        out += '"';
    }
}

std::string base64(std::string_view bytes) {
    static constexpr char digits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string out;
    out.reserve((bytes.size() + 2) / 3 * 4);
    std::size_t i = 0;
    for (; i + 3 <= bytes.size(); i += 3) {
        const unsigned v = static_cast<unsigned char>(bytes[i]) << 16 |
                           static_cast<unsigned char>(bytes[i + 1]) << 8 | static_cast<unsigned char>(bytes[i + 2]);
        out += digits[v >> 18];
        out += digits[(v >> 12) & 63];
        out += digits[(v >> 6) & 63];
        out += digits[v & 63];
    }
    if (const std::size_t rest = bytes.size() - i; rest > 0) {
        unsigned v = static_cast<unsigned char>(bytes[i]) << 16;
        if (rest == 2)
            v |= static_cast<unsigned char>(bytes[i + 1]) << 8;
        out += digits[v >> 18];
        out += digits[(v >> 12) & 63];
        out += rest == 2 ? digits[(v >> 6) & 63] : '=';
        out += '=';
    }
    return out;
}

std::optional<std::string> exactBytes(std::string_view text) {
    if (isUtf8(text))
        return std::nullopt;
    return base64(text);
}

} // namespace ZephraneCli::JsonText
