#include "TerminalText.hpp"

#include "JsonText.hpp"

namespace ZephraneCli {

void appendShown(std::string& out, std::string_view text, bool escape) {
    if (!escape) {
        out += text;
        return;
    }
    static constexpr char hex[] = "0123456789abcdef";
    const auto byteEscape = [&](unsigned char c) {
        out += "\\x";
        out += hex[c >> 4];
        out += hex[c & 0xF];
    };
    for (std::size_t i = 0; i < text.size();) {
        const auto c = static_cast<unsigned char>(text[i]);
        if (c >= 0x80) {
            const std::size_t length = JsonText::sequenceLength(text, i);
            // U+0080 to U+009F are controls too: C2 80 to C2 9F.
            if (length == 0 || (c == 0xC2 && static_cast<unsigned char>(text[i + 1]) < 0xA0)) {
                byteEscape(c);
                ++i;
            } else {
                out.append(text.substr(i, length));
                i += length;
            }
            continue;
        }
        switch (c) {
        case '\n':
            out += "\\n";
            break;
        case '\t':
            out += "\\t";
            break;
        case '\r':
            out += "\\r";
            break;
        case 0x1B:
            out += "\\e";
            break;
        case '\\':
            out += "\\\\";
            break;
        default:
            if (c < 0x20 || c == 0x7F)
                byteEscape(c);
            else
                out += static_cast<char>(c);
        }
        ++i;
    }
}

std::string escapedForTerminal(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    appendShown(out, text, true);
    return out;
}

} // namespace ZephraneCli
