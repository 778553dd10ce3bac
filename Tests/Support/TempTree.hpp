#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace TestSupport {

// A temporary folder that tests build their trees in; removed (links not followed) on destruction.
class TempTree {
public:
    TempTree();
    ~TempTree();
    TempTree(const TempTree&) = delete;
    TempTree& operator=(const TempTree&) = delete;

    const std::filesystem::path& root() const { return base; }
    std::filesystem::path path(std::string_view relative) const { return base / relative; }

    // Creates parents as needed. `bytes` of content, written in one go.
    std::filesystem::path file(std::string_view relative, std::size_t bytes = 0) const;
    std::filesystem::path text(std::string_view relative, std::string_view content) const;
    std::filesystem::path folder(std::string_view relative) const;
    std::filesystem::path symlink(std::string_view relative, const std::filesystem::path& target) const;

private:
    std::filesystem::path base;
};

// Sets the last access and last change of `path` (a link itself, not its target), in seconds
// since 1970; returns whether that worked.
bool setTimes(const std::filesystem::path& path, std::int64_t accessed, std::int64_t modified);

// The names in `folder`, sorted; none when it can't be listed.
std::vector<std::string> namesIn(const std::filesystem::path& folder);

// Writes `content` to `path`, parents made as needed.
void writeText(const std::filesystem::path& path, std::string_view content);

// A file's whole content; empty when it can't be read.
std::string readText(const std::filesystem::path& path);

// Points HOME (and the XDG folders) at a fresh temporary home for the whole test program, so that
// nothing can reach the real one; aborts the program if that fails. Call once from main().
void isolateHome();

} // namespace TestSupport
