#include "CleanerCore/Updates/StoreLookup.hpp"

#include "CleanerCore/Updates/AppVersion.hpp"
#include "CleanerCore/Updates/WebURL.hpp"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace CleanerCore::StoreLookup {
namespace {

using nlohmann::json;

std::string lowercased(std::string_view text) {
    std::string out(text);
    std::transform(out.begin(), out.end(), out.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return out;
}

const std::string* stringAt(const json& object, const char* key) {
    const auto found = object.find(key);
    return found != object.end() && found->is_string() ? &found->get_ref<const std::string&>() : nullptr;
}

} // namespace

std::optional<std::string> installedComparable(const AppBundleInfo& info) {
    if (info.shortVersion)
        return AppVersion::cutAtParenthesis(*info.shortVersion);
    if (info.buildVersion)
        return AppVersion::cutAtParenthesis(*info.buildVersion);
    return std::nullopt;
}

std::optional<AppUpdate> update(const AppBundleInfo& info, std::string_view lookup) {
    if (!info.bundleID)
        return std::nullopt;
    const json document = json::parse(lookup, nullptr, false);
    if (!document.is_object())
        return std::nullopt;
    const auto results = document.find("results");
    if (results == document.end() || !results->is_array())
        return std::nullopt;
    const std::string wanted = lowercased(*info.bundleID);
    const json* match = nullptr;
    for (const json& result : *results) {
        if (!result.is_object())
            return std::nullopt;
        const std::string* id = stringAt(result, "bundleId");
        if (id == nullptr || lowercased(*id) != wanted)
            continue;
        if (const std::string* kind = stringAt(result, "kind"); kind != nullptr && *kind != "mac-software")
            continue;
        match = &result;
        break;
    }
    if (match == nullptr)
        return std::nullopt;
    const std::string* version = stringAt(*match, "version");
    const auto installed = installedComparable(info);
    if (version == nullptr || !installed || !AppVersion::isNewer(AppVersion::cutAtParenthesis(*version), *installed))
        return std::nullopt;

    AppUpdate update = AppUpdate::forApp(info, AppUpdateSource::appStore, *version);
    if (const std::string* notes = stringAt(*match, "releaseNotes"); notes != nullptr && !notes->empty())
        update.notes = *notes; // plain text already: not put through the HTML cleaner
    if (const std::string* page = stringAt(*match, "trackViewUrl"))
        update.notesURL = WebURL::parse(*page);
    if (const auto track = match->find("trackId"); track != match->end() && track->is_number_integer())
        update.storeURL = URL::parse("macappstore://apps.apple.com/app/id" + std::to_string(track->get<std::int64_t>()));
    return update;
}

} // namespace CleanerCore::StoreLookup
