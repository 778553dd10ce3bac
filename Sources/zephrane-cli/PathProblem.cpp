#include "PathProblem.hpp"

#include "TerminalText.hpp"

#include "CleanerCore/Files/URL.hpp"

#include <cerrno>
#include <cstring>
#include <filesystem>

namespace ZephraneCli {

std::string pathProblem(const std::string& path, int error) {
    if (error == ELOOP || error == ENOTDIR) {
        std::error_code ignored;
        const auto status = std::filesystem::symlink_status(CleanerCore::standardizedPath(path), ignored);
        if (std::filesystem::is_symlink(status))
            return "it is a symbolic link, which is never followed";
        if (std::filesystem::exists(status))
            return "it is not a folder";
    }
    return std::strerror(error);
}

std::string unreadableMessage(std::int64_t folders, const std::string& path) {
    return std::to_string(folders) + (folders == 1 ? " folder" : " folders") + " below '" +
           escapedForTerminal(path) + "' could not be read; what " + (folders == 1 ? "it holds" : "they hold") +
           " is not counted";
}

} // namespace ZephraneCli
