#pragma once

#include "CleanerCore/DiskTree/DiskNode.hpp"

#include <cstdint>
#include <iosfwd>
#include <string>

namespace ZephraneCli {

// Writes a disk tree as one JSON object per node (name, size, itemCount, isDirectory, isAggregate,
// children), streamed through a fixed buffer: a tree of a million files never becomes one string.
// Only the root carries its full path, and the count of folders that could not be read
// (`unreadable`); a nested node carries its name, so the output grows with the tree, not with its
// depth. Names that are not UTF-8 get their exact bytes beside them (see JsonText).
class DiskTreeJson {
public:
    explicit DiskTreeJson(std::ostream& out);
    ~DiskTreeJson();
    DiskTreeJson(const DiskTreeJson&) = delete;
    DiskTreeJson& operator=(const DiskTreeJson&) = delete;

    void write(const CleanerCore::DiskNode& root, std::int64_t unreadable);

private:
    void node(const CleanerCore::DiskNode& node);
    void flushIfFull();

    std::ostream& out;
    std::string buffer;
};

} // namespace ZephraneCli
