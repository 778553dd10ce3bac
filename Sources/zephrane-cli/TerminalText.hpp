#pragma once

#include <string>
#include <string_view>

namespace ZephraneCli {

// A file name made safe to show to a person: control characters (a newline would forge a whole
// line, ESC and CR reach the terminal itself), DEL, the C1 controls and bytes that are not UTF-8
// are written as "\n", "\t", "\r", "\e" or "\xHH", and a backslash as "\\", so the text can be
// told apart from what it stands for. Plain UTF-8 is left as it is.
std::string escapedForTerminal(std::string_view text);

// Appends `text` to `out`, escaped only when `escape` is set.
void appendShown(std::string& out, std::string_view text, bool escape);

} // namespace ZephraneCli
