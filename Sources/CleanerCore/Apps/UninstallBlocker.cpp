#include "CleanerCore/Apps/UninstallBlocker.hpp"

namespace CleanerCore {

std::string_view rawValue(UninstallBlocker blocker) {
    switch (blocker) {
    case UninstallBlocker::running:
        return "running";
    case UninstallBlocker::apple:
        return "apple";
    case UninstallBlocker::zephrane:
        return "zephrane";
    }
    return "running";
}

template <> std::optional<UninstallBlocker> fromRaw<UninstallBlocker>(std::string_view raw) {
    for (UninstallBlocker blocker : allUninstallBlockers)
        if (rawValue(blocker) == raw)
            return blocker;
    return std::nullopt;
}

} // namespace CleanerCore
