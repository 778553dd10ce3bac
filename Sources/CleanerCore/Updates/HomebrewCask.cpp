#include "CleanerCore/Updates/HomebrewCask.hpp"

#include "CleanerCore/Updates/UpdateFetching.hpp"
#include "CleanerCore/Updates/WebURL.hpp"

#include <nlohmann/json.hpp>

#include <dirent.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <unistd.h>

namespace CleanerCore {
namespace {

using nlohmann::json;

std::string lastPathComponent(std::string_view path) {
    while (path.size() > 1 && path.back() == '/')
        path.remove_suffix(1);
    const std::size_t slash = path.rfind('/');
    return std::string(slash == std::string_view::npos ? path : path.substr(slash + 1));
}

std::optional<URL> urlOf(const json& object, const char* key) {
    const auto found = object.find(key);
    if (found == object.end() || !found->is_string())
        return std::nullopt;
    return WebURL::parse(found->get_ref<const std::string&>());
}

std::optional<HomebrewCask> caskFrom(const json& object) {
    if (!object.is_object())
        return std::nullopt;
    const auto token = object.find("token");
    const auto version = object.find("version");
    if (token == object.end() || !token->is_string() || version == object.end() || !version->is_string())
        return std::nullopt;
    HomebrewCask cask;
    cask.token = token->get<std::string>();
    cask.version = version->get<std::string>();
    if (const auto artifacts = object.find("artifacts"); artifacts != object.end() && artifacts->is_array()) {
        for (const json& artifact : *artifacts) {
            if (!artifact.is_object())
                continue;
            if (const auto app = artifact.find("app"); app != artifact.end() && app->is_array()) {
                for (const json& element : *app) {
                    if (element.is_string())
                        cask.appNames.push_back(lastPathComponent(element.get_ref<const std::string&>()));
                    else if (element.is_object())
                        if (const auto target = element.find("target"); target != element.end() && target->is_string())
                            cask.appNames.push_back(lastPathComponent(target->get_ref<const std::string&>()));
                }
            }
            if (const auto uninstall = artifact.find("uninstall"); uninstall != artifact.end() && uninstall->is_array()) {
                for (const json& step : *uninstall) {
                    if (!step.is_object())
                        continue;
                    const auto quit = step.find("quit");
                    if (quit == step.end())
                        continue;
                    if (quit->is_string())
                        cask.bundleIDs.push_back(quit->get<std::string>());
                    else if (quit->is_array())
                        for (const json& id : *quit)
                            if (id.is_string())
                                cask.bundleIDs.push_back(id.get<std::string>());
                }
            }
        }
    }
    if (cask.appNames.empty())
        return std::nullopt; // fonts, plug-ins and bare installers deliver no app
    cask.downloadURL = urlOf(object, "url");
    cask.homepage = urlOf(object, "homepage");
    return cask;
}

std::optional<std::string> readFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return std::nullopt;
    std::ostringstream bytes;
    bytes << in.rdbuf();
    if (in.bad())
        return std::nullopt;
    return std::move(bytes).str();
}

// Written beside the target and renamed over it, so that a reader never sees half a file.
void writeAtomically(const std::string& folder, const std::string& name, const std::string& bytes) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    const std::string target = folder + "/" + name;
    std::string temporary = target + ".XXXXXX";
    const int fd = mkstemp(temporary.data());
    if (fd < 0)
        return;
    bool written = true;
    for (std::size_t offset = 0; offset < bytes.size() && written;) {
        const ssize_t n = ::write(fd, bytes.data() + offset, bytes.size() - offset);
        if (n < 0 && errno == EINTR)
            continue;
        written = n > 0;
        offset += written ? static_cast<std::size_t>(n) : 0;
    }
    ::close(fd);
    if (!written || std::rename(temporary.c_str(), target.c_str()) != 0)
        ::unlink(temporary.c_str());
}

} // namespace

std::optional<std::string> HomebrewCask::comparableVersion() const {
    std::string_view first = version;
    std::string_view rest = version;
    while (!rest.empty()) {
        const std::size_t comma = rest.find(',');
        const std::string_view piece = rest.substr(0, comma);
        if (!piece.empty()) {
            first = piece;
            break;
        }
        rest = comma == std::string_view::npos ? std::string_view{} : rest.substr(comma + 1);
    }
    if (first.empty() || first == "latest")
        return std::nullopt;
    return std::string(first);
}

std::vector<HomebrewCask> HomebrewCask::index(std::string_view apiJSON) {
    const json document = json::parse(apiJSON, nullptr, false);
    if (!document.is_array())
        return {};
    std::vector<HomebrewCask> casks;
    for (const json& object : document) {
        if (!object.is_object())
            return {};
        if (auto cask = caskFrom(object))
            casks.push_back(std::move(*cask));
    }
    return casks;
}

std::string HomebrewCask::encode(const std::vector<HomebrewCask>& casks) {
    json list = json::array();
    for (const HomebrewCask& cask : casks) {
        json entry{{"token", cask.token}, {"version", cask.version}, {"appNames", cask.appNames},
                   {"bundleIDs", cask.bundleIDs}};
        if (cask.downloadURL)
            entry["downloadURL"] = cask.downloadURL->absoluteString();
        if (cask.homepage)
            entry["homepage"] = cask.homepage->absoluteString();
        list.push_back(std::move(entry));
    }
    return list.dump(-1, ' ', false, json::error_handler_t::replace);
}

std::optional<std::vector<HomebrewCask>> HomebrewCask::decode(std::string_view bytes) {
    const json document = json::parse(bytes, nullptr, false);
    if (!document.is_array())
        return std::nullopt;
    std::vector<HomebrewCask> casks;
    try {
        for (const json& entry : document) {
            HomebrewCask cask;
            cask.token = entry.at("token").get<std::string>();
            cask.version = entry.at("version").get<std::string>();
            cask.appNames = entry.at("appNames").get<std::vector<std::string>>();
            cask.bundleIDs = entry.at("bundleIDs").get<std::vector<std::string>>();
            if (entry.contains("downloadURL"))
                cask.downloadURL = URL::parse(entry.at("downloadURL").get<std::string>());
            if (entry.contains("homepage"))
                cask.homepage = URL::parse(entry.at("homepage").get<std::string>());
            casks.push_back(std::move(cask));
        }
    } catch (const json::exception&) {
        return std::nullopt;
    }
    return casks;
}

HomebrewCaskIndex::HomebrewCaskIndex(const UpdateFetching& fetcher, std::string cacheFolder,
                                     std::chrono::seconds maxAge, URL indexURL)
    : fetcher(fetcher), cacheFolder(std::move(cacheFolder)), maxAge(maxAge), indexURL(std::move(indexURL)) {}

std::optional<std::vector<HomebrewCask>> HomebrewCaskIndex::casks() const {
    const std::string cachePath = cacheFolder + "/" + std::string(cacheFileName);
    const std::optional<std::string> cached = readFile(cachePath);
    std::error_code error;
    const auto modified = std::filesystem::last_write_time(cachePath, error);
    const auto age = std::filesystem::file_time_type::clock::now() - modified;
    if (cached && !error && age < maxAge)
        if (auto casks = HomebrewCask::decode(*cached))
            return casks;

    try {
        std::vector<HomebrewCask> casks = HomebrewCask::index(fetcher.data(indexURL));
        if (!casks.empty()) {
            writeAtomically(cacheFolder, std::string(cacheFileName), HomebrewCask::encode(casks));
            return casks;
        }
    } catch (const std::exception&) {
        // An unreachable index never loses the old one: fall back to the cache below.
    }
    if (cached)
        return HomebrewCask::decode(*cached);
    return std::nullopt;
}

std::optional<std::vector<HomebrewCask>> HomebrewCaskIndex::cached() const {
    const auto bytes = readFile(cacheFolder + "/" + std::string(cacheFileName));
    if (!bytes)
        return std::nullopt;
    return HomebrewCask::decode(*bytes);
}

std::set<std::string> installedCaskTokens(const std::vector<std::string>& caskroomFolders) {
    std::set<std::string> tokens;
    for (const std::string& folder : caskroomFolders) {
        DIR* directory = opendir(folder.c_str());
        if (directory == nullptr)
            continue;
        while (const dirent* entry = readdir(directory))
            if (entry->d_name[0] != '.')
                tokens.insert(entry->d_name);
        closedir(directory);
    }
    return tokens;
}

} // namespace CleanerCore
