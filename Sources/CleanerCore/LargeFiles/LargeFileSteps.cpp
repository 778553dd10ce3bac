#include "CleanerCore/LargeFiles/LargeFileSteps.hpp"

#include <algorithm>

namespace CleanerCore::LargeFileSteps {

std::optional<std::string> stepID(const URL& file, const URL& home,
                                  const std::set<std::string, std::less<>>& ids) {
    const std::string filePath = standardizedPath(file.path());
    const std::string homePath = standardizedPath(home.path());
    const auto fileParts = pathComponents(filePath);
    const auto homeParts = pathComponents(homePath);
    if (fileParts.size() < homeParts.size() + 2 ||
        !std::equal(homeParts.begin(), homeParts.end(), fileParts.begin()))
        return std::nullopt;
    const std::string_view first = fileParts[homeParts.size()];
    if (const auto found = ids.find(first); found != ids.end())
        return *found;
    if (ids.contains(otherID))
        return std::string(otherID);
    return std::nullopt;
}

} // namespace CleanerCore::LargeFileSteps
