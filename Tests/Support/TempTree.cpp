#include "TempTree.hpp"

#include "FlatpakFixture.hpp"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <string>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace TestSupport {
namespace {

fs::path makeTemporaryFolder(const char* prefix) {
    std::string pattern = (fs::temp_directory_path() / (std::string(prefix) + "XXXXXX")).string();
    if (!::mkdtemp(pattern.data())) {
        std::perror("mkdtemp");
        std::abort();
    }
    return pattern;
}

void makeWritable(const fs::path& root) {
    std::error_code error;
    fs::permissions(root, fs::perms::owner_all, fs::perm_options::add, error);
    for (auto it =
             fs::recursive_directory_iterator(root, fs::directory_options::skip_permission_denied, error);
         it != fs::recursive_directory_iterator(); it.increment(error)) {
        if (it->is_directory(error) && !it->is_symlink(error))
            fs::permissions(it->path(), fs::perms::owner_all, fs::perm_options::add, error);
    }
}

} // namespace

TempTree::TempTree() : base(makeTemporaryFolder("zephrane-test-")) {}

TempTree::~TempTree() {
    std::error_code error;
    makeWritable(base); // tests leave chmod 000 folders behind
    fs::remove_all(base, error);
}

fs::path TempTree::file(std::string_view relative, std::size_t bytes) const {
    return text(relative, std::string(bytes, 'z'));
}

void writeText(const fs::path& path, std::string_view content) {
    fs::create_directories(path.parent_path());
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(content.data(), static_cast<std::streamsize>(content.size()));
}

fs::path TempTree::text(std::string_view relative, std::string_view content) const {
    const fs::path target = base / relative;
    writeText(target, content);
    return target;
}

fs::path TempTree::folder(std::string_view relative) const {
    const fs::path target = base / relative;
    fs::create_directories(target);
    return target;
}

fs::path TempTree::symlink(std::string_view relative, const fs::path& target) const {
    const fs::path link = base / relative;
    fs::create_directories(link.parent_path());
    fs::create_symlink(target, link);
    return link;
}

std::vector<std::string> namesIn(const fs::path& folder) {
    std::vector<std::string> names;
    std::error_code error;
    for (auto it = fs::directory_iterator(folder, error); it != fs::directory_iterator(); it.increment(error))
        names.push_back(it->path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

std::string readText(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

bool setTimes(const fs::path& path, std::int64_t accessed, std::int64_t modified) {
    const struct timespec times[2] = {{accessed, 0}, {modified, 0}};
    return ::utimensat(AT_FDCWD, path.c_str(), times, AT_SYMLINK_NOFOLLOW) == 0;
}

void isolateHome() {
    static const fs::path home = makeTemporaryFolder("zephrane-home-");
    const fs::path temp = fs::temp_directory_path();
    if (home.string().rfind(temp.string(), 0) != 0) {
        std::fprintf(stderr, "test home %s is not under %s; refusing to run\n", home.c_str(), temp.c_str());
        std::abort();
    }
    ::setenv("HOME", home.c_str(), 1);
    ::setenv("XDG_DATA_HOME", (home / ".local/share").c_str(), 1);
    ::setenv("XDG_CONFIG_HOME", (home / ".config").c_str(), 1);
    ::setenv("XDG_CACHE_HOME", (home / ".cache").c_str(), 1);
    static const TempTree flatpak; // removed at exit, deployed read-only files and all
    isolateFlatpak(flatpak.root());
}

} // namespace TestSupport
