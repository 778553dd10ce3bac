#pragma once

#include "CleanerCore/Updates/UpdateFetching.hpp"

#include <filesystem>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace TestSupport {

// Answers each address with its canned body, or with `anyOther` when there is one; else fails like
// an unreachable server. Downloads hand over a copy of `archive`. Notes every address asked.
class CannedFetcher final : public CleanerCore::UpdateFetching {
public:
    std::map<std::string, std::string> bodies;
    std::optional<std::string> anyOther;
    std::filesystem::path archive;
    mutable std::mutex lock;
    mutable std::vector<std::string> asked;

    std::string data(const CleanerCore::URL& from) const override {
        const std::lock_guard guard(lock);
        asked.push_back(from.absoluteString());
        if (const auto found = bodies.find(from.absoluteString()); found != bodies.end())
            return found->second;
        if (!anyOther)
            throw CleanerCore::TransferError("unreachable");
        return *anyOther;
    }
    CleanerCore::URL download(const CleanerCore::URL&, const CleanerCore::URL& folder) const override {
        const std::filesystem::path target = std::filesystem::path(folder.path()) / archive.filename();
        std::filesystem::copy_file(archive, target);
        return CleanerCore::URL::file(target.string());
    }
};

} // namespace TestSupport
