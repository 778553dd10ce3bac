#include "CleanerCore/Apps/RunningAppInfo.hpp"

#include "CleanerCore/Files/URL.hpp"

namespace CleanerCore {

RunningAppInfo RunningAppInfo::fromProcess(const Platform::RunningApplication& process) {
    std::string name = process.name;
    if (name.empty() && process.bundlePath) {
        const URL bundle = URL::file(*process.bundlePath);
        name = bundle.lastPathComponent();
        if (const std::string extension = bundle.pathExtension(); !extension.empty())
            name.erase(name.size() - extension.size() - 1);
    }
    return {process.pid, std::move(name), process.bundleIdentifier, process.bundlePath, process.isRegular};
}

} // namespace CleanerCore

std::size_t
std::hash<CleanerCore::RunningAppInfo>::operator()(const CleanerCore::RunningAppInfo& info) const noexcept {
    return std::hash<std::int32_t>{}(info.pid) ^ (std::hash<std::string>{}(info.name) << 1) ^
           (std::hash<std::optional<std::string>>{}(info.bundleIdentifier) << 2);
}
