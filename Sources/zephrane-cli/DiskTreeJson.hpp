#pragma once

#include "CleanerCore/DiskTree/DiskNode.hpp"

#include <iosfwd>
#include <string>
#include <string_view>

namespace ZephraneCli {

// Writes a disk tree as one JSON object per node (path, name, size, itemCount, isDirectory,
// isAggregate, children), streamed through a fixed buffer: a tree of a million files never
// becomes one string. Bytes that are not UTF-8 in names come out as U+FFFD.
class DiskTreeJson {
public:
    explicit DiskTreeJson(std::ostream& out);
    ~DiskTreeJson();
    DiskTreeJson(const DiskTreeJson&) = delete;
    DiskTreeJson& operator=(const DiskTreeJson&) = delete;

    void write(const CleanerCore::DiskNode& root);

    // `text` as a JSON string literal, quotes included.
    static void appendString(std::string& out, std::string_view text);

private:
    void node(const CleanerCore::DiskNode& node);
    void flushIfFull();

    std::ostream& out;
    std::string buffer;
    std::string scratch;
};

} // namespace ZephraneCli
