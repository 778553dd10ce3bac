#include "CleanerCore/Trash/TrashInfo.hpp"

#include <cstdio>
#include <ctime>

namespace CleanerCore::TrashInfo {

std::string fileName(std::string_view itemName) {
    return std::string(itemName) + std::string(suffix);
}

std::optional<std::string> itemName(std::string_view infoFileName) {
    if (infoFileName.size() <= suffix.size() || !infoFileName.ends_with(suffix))
        return std::nullopt;
    return std::string(infoFileName.substr(0, infoFileName.size() - suffix.size()));
}

std::optional<std::chrono::system_clock::time_point> deletionDate(std::string_view text) {
    bool inGroup = false;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text = end == std::string_view::npos ? std::string_view{} : text.substr(end + 1);
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        if (line.starts_with('[')) {
            inGroup = line == "[Trash Info]";
            continue;
        }
        constexpr std::string_view key = "DeletionDate=";
        if (!inGroup || !line.starts_with(key))
            continue;
        const std::string value(line.substr(key.size()));
        std::tm local{};
        int consumed = 0;
        if (std::sscanf(value.c_str(), "%4d-%2d-%2dT%2d:%2d:%2d%n", &local.tm_year, &local.tm_mon,
                        &local.tm_mday, &local.tm_hour, &local.tm_min, &local.tm_sec, &consumed) != 6 ||
            static_cast<std::size_t>(consumed) != value.size())
            return std::nullopt;
        if (local.tm_mon < 1 || local.tm_mon > 12 || local.tm_mday < 1 || local.tm_mday > 31 ||
            local.tm_hour < 0 || local.tm_hour > 23 || local.tm_min < 0 || local.tm_min > 59 ||
            local.tm_sec < 0 || local.tm_sec > 60)
            return std::nullopt;
        local.tm_year -= 1900;
        local.tm_mon -= 1;
        local.tm_isdst = -1; // the offset of that day, not of today
        const std::time_t seconds = std::mktime(&local);
        if (seconds == static_cast<std::time_t>(-1))
            return std::nullopt;
        return std::chrono::system_clock::from_time_t(seconds);
    }
    return std::nullopt;
}

} // namespace CleanerCore::TrashInfo
