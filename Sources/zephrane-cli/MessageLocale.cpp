#include "MessageLocale.hpp"

#include <cstdlib>

namespace ZephraneCli {

std::string messageLocale() {
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char* value = std::getenv(name);
        if (!value || !*value)
            continue;
        const std::string locale(value);
        if (locale == "C" || locale.starts_with("C.") || locale == "POSIX")
            return "en";
        return locale;
    }
    return "en";
}

} // namespace ZephraneCli
