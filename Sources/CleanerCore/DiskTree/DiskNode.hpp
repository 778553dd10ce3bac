#pragma once

#include "CleanerCore/Files/URL.hpp"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace CleanerCore {

// One item of a disk tree: a file, a package, a folder that was descended, or the aggregate of a
// folder's small items. Immutable once built and shared between trees; identified by its path.
//
// A scan keeps hundreds of thousands of these, so a node is 40 bytes and owns no string of its own:
// the path of a folder and the names of its children live in one shared block of text, and a
// folder's leaves live in one allocation with it.
class DiskNode {
public:
    using Pointer = std::shared_ptr<const DiskNode>;

    // The last path component of a folder's aggregate node, which stands for no real item.
    static constexpr std::string_view smallItemsComponent = ".zephrane-small-items";

    // A folder's path as a chain of names up to the scan's root, so that a deep tree holds each
    // name once instead of one whole path per level. Shared by every tree that holds the folder.
    struct FolderPath {
        using Pointer = std::shared_ptr<const FolderPath>;

        // `parent` is null at the root of a chain, whose `name` is a whole path.
        FolderPath(Pointer parent, std::string name);
        ~FolderPath();
        FolderPath(const FolderPath&) = delete;
        FolderPath& operator=(const FolderPath&) = delete;

        static Pointer root(std::string path) { return std::make_shared<const FolderPath>(nullptr, std::move(path)); }
        static Pointer child(Pointer parent, std::string_view name) {
            return std::make_shared<const FolderPath>(std::move(parent), std::string(name));
        }

        std::size_t size() const { return length; }
        std::string string() const;
        void appendTo(std::string& out) const;
        // The last component: the name, or the root path's last component.
        std::string_view lastName() const;
        // Whether `path` starts with this whole path (a component boundary is not checked).
        bool isPrefixOf(std::string_view path) const;
        bool equals(std::string_view path) const { return path.size() == length && isPrefixOf(path); }
        // A child's path needs a "/" after this one (not after "/").
        bool separated() const { return !name.ends_with('/'); }
        const FolderPath* parentPath() const { return parent.get(); }

    private:
        mutable Pointer parent; // mutable only so a long chain can be released without recursion
        std::string name;
        std::size_t length;
    };

    // The text of one folder's nodes: the folder's path, then its own name and its children's names.
    struct Text {
        FolderPath::Pointer folder;
        std::string chars;
    };

    // One folder's text and its leaves, in one shared allocation instead of one per leaf. The
    // leaves point at the text without owning it (they can't outlive the block that holds both);
    // pointers to a leaf share ownership of the whole block.
    struct Block;

    // `name` defaults to the last component of `url`.
    DiskNode(const URL& url, std::optional<std::string> name, std::int64_t size, bool isDirectory,
             std::int64_t itemCount, bool isAggregate, std::vector<Pointer> children);

    // A node whose strings live in `text`: its name is chars[nameOffset, nameOffset + nameLength),
    // and its path is text.folder itself (`isFolderItself`) or text.folder + "/" + name (for an
    // aggregate, + "/" + smallItemsComponent). `textOwner` keeps `text` alive; it may only be null
    // for a leaf of the Block that holds `text`.
    DiskNode(const Text& text, std::shared_ptr<const void> textOwner, bool isFolderItself,
             std::size_t nameOffset, std::size_t nameLength, std::int64_t size, bool isDirectory,
             std::int64_t itemCount, bool isAggregate, std::vector<Pointer> children);

    ~DiskNode();
    DiskNode(DiskNode&& other) noexcept;
    DiskNode(const DiskNode&) = delete;
    DiskNode& operator=(const DiskNode&) = delete;
    DiskNode& operator=(DiskNode&&) = delete;

    URL url() const { return URL::file(path()); }
    std::string path() const;
    void appendPath(std::string& out) const;
    std::string_view name() const { return std::string_view(text->chars).substr(nameOffset, nameLength); }
    std::int64_t size() const { return bytes; }
    bool isDirectory() const { return flags & directoryFlag; }
    std::int64_t itemCount() const { return items; }
    bool isAggregate() const { return flags & aggregateFlag; }
    std::span<const Pointer> children() const;

    // `node` if its path is `url`, else the first match among its descendants, depth first; null
    // when absent. Subtrees whose path is not a prefix of `url` are not visited.
    static Pointer find(const Pointer& node, const URL& url);

    // The nodes from `node` down to the one at `url`, `node` first; absent when it is not there.
    static std::optional<std::vector<Pointer>> pathTo(const Pointer& node, const URL& url);

    // The tree without the items at `urls`. Subtrees that hold none of them are shared, not copied;
    // every changed folder sums its size and count again over the children it keeps.
    static Pointer removing(const Pointer& node, const std::unordered_set<URL>& urls);

    // The last component of a path ("/" for the root).
    static std::string_view lastComponent(std::string_view path);
    // `folder` + "/" + `name`, without doubling the separator after "/".
    static void appendChild(std::string& out, std::string_view folder, std::string_view name);

private:
    // The children, and what keeps the text alive, in one allocation; absent for a Block's leaf.
    struct Links;
    static constexpr std::uint8_t directoryFlag = 1, aggregateFlag = 2, folderItselfFlag = 4;

    std::string_view lastUrlComponent() const { return isAggregate() ? smallItemsComponent : name(); }
    bool pathEquals(std::string_view path) const;
    bool pathIsPrefixOf(std::string_view path) const;
    // pathIsPrefixOf for a child of `parent`, knowing that the parent's path is a prefix of `path`.
    bool pathIsPrefixBelow(const DiskNode& parent, std::string_view path) const;
    static Pointer find(const Pointer& node, std::string_view path);
    static std::optional<std::vector<Pointer>> pathTo(const Pointer& node, std::string_view path);

    const Text* text;
    Links* links = nullptr;
    std::int64_t bytes = 0;
    std::int64_t items = 0;
    std::uint32_t nameOffset = 0;
    std::uint16_t nameLength = 0; // names longer than 64 KiB are cut there
    std::uint8_t flags = 0;
};

struct DiskNode::Block {
    Text text;
    std::vector<DiskNode> leaves;
};

// The order of a folder's children: larger first, then by name; equal names are not before.
bool largestFirst(const DiskNode& a, const DiskNode& b);

// Non-aggregate nodes by largestFirst, aggregates after them.
void orderChildren(std::vector<DiskNode::Pointer>& children);

} // namespace CleanerCore
