#include "CleanerCore/DiskTree/DiskNode.hpp"

#include <algorithm>
#include <cstddef>
#include <new>
#include <utility>
#include <vector>

namespace CleanerCore {
namespace {

bool separated(std::string_view folder) {
    return !folder.ends_with('/');
}

std::uint16_t clampedLength(std::size_t length) {
    return static_cast<std::uint16_t>(std::min<std::size_t>(length, UINT16_MAX));
}

} // namespace

// Laid out as this header followed by `count` Pointers, in one allocation.
struct DiskNode::Links {
    std::shared_ptr<const void> owner;
    std::size_t count = 0;

    Pointer* slots() {
        return reinterpret_cast<Pointer*>(reinterpret_cast<std::byte*>(this) + sizeof(Links));
    }

    static Links* make(std::shared_ptr<const void> owner, std::vector<Pointer>& children) {
        static_assert(sizeof(Links) % alignof(Pointer) == 0);
        void* raw = ::operator new(sizeof(Links) + children.size() * sizeof(Pointer));
        auto* links = new (raw) Links{std::move(owner), children.size()};
        Pointer* slot = links->slots();
        for (Pointer& child : children)
            new (slot++) Pointer(std::move(child));
        return links;
    }

    static void destroy(Links* links) {
        Pointer* slot = links->slots();
        for (std::size_t i = 0; i < links->count; ++i)
            slot[i].~Pointer();
        links->~Links();
        ::operator delete(links);
    }
};

DiskNode::FolderPath::FolderPath(Pointer parent, std::string name)
    : parent(std::move(parent)), name(std::move(name)) {
    length = this->name.size();
    if (this->parent)
        length += this->parent->length + (this->parent->separated() ? 1 : 0);
}

DiskNode::FolderPath::~FolderPath() {
    // Releases the chain above one link at a time: a recursive release of a chain thousands of
    // folders deep would run out of stack.
    Pointer next = std::move(parent);
    while (next && next.use_count() == 1)
        next = std::move(next->parent);
}

std::string DiskNode::FolderPath::string() const {
    std::string out;
    appendTo(out);
    return out;
}

void DiskNode::FolderPath::appendTo(std::string& out) const {
    const std::size_t start = out.size();
    out.resize(start + length);
    std::size_t end = start + length;
    for (const FolderPath* at = this; at; at = at->parent.get()) {
        end -= at->name.size();
        out.replace(end, at->name.size(), at->name);
        if (at->parent && at->parent->separated())
            out[--end] = '/';
    }
}

std::string_view DiskNode::FolderPath::lastName() const {
    return parent ? std::string_view(name) : lastComponent(name);
}

bool DiskNode::FolderPath::isPrefixOf(std::string_view path) const {
    if (path.size() < length)
        return false;
    std::size_t end = length;
    for (const FolderPath* at = this; at; at = at->parent.get()) {
        end -= at->name.size();
        if (path.compare(end, at->name.size(), at->name) != 0)
            return false;
        if (at->parent && at->parent->separated() && path[--end] != '/')
            return false;
    }
    return true;
}

DiskNode::DiskNode(const URL& url, std::optional<std::string> name, std::int64_t size, bool isDirectory,
                   std::int64_t itemCount, bool isAggregate, std::vector<Pointer> children)
    : bytes(size), items(itemCount) {
    auto own = std::make_shared<Text>();
    own->folder = FolderPath::root(url.path());
    own->chars = name ? *name : std::string(own->folder->lastName());
    nameLength = clampedLength(own->chars.size());
    flags = static_cast<std::uint8_t>((isDirectory ? directoryFlag : 0) | (isAggregate ? aggregateFlag : 0) |
                                      folderItselfFlag);
    text = own.get();
    links = Links::make(std::move(own), children);
}

DiskNode::DiskNode(const Text& shared, std::shared_ptr<const void> textOwner, bool isFolderItself,
                   std::size_t offset, std::size_t length, std::int64_t size, bool isDirectory,
                   std::int64_t itemCount, bool isAggregate, std::vector<Pointer> children)
    : text(&shared), bytes(size), items(itemCount), nameOffset(static_cast<std::uint32_t>(offset)),
      nameLength(clampedLength(length)),
      flags(static_cast<std::uint8_t>((isDirectory ? directoryFlag : 0) | (isAggregate ? aggregateFlag : 0) |
                                      (isFolderItself ? folderItselfFlag : 0))) {
    if (textOwner || !children.empty())
        links = Links::make(std::move(textOwner), children);
}

DiskNode::~DiskNode() {
    if (!links)
        return;
    // Subtrees owned only here are released from a list, not by recursion: a chain of folders
    // thousands deep would run out of stack.
    std::vector<Pointer> pending;
    const auto takeSoleSubtrees = [&pending](Links& from) {
        Pointer* slot = from.slots();
        for (std::size_t i = 0; i < from.count; ++i)
            if (slot[i].use_count() == 1 && !slot[i]->children().empty())
                pending.push_back(std::move(slot[i]));
    };
    takeSoleSubtrees(*links);
    Links::destroy(links);
    while (!pending.empty()) {
        Pointer node = std::move(pending.back());
        pending.pop_back();
        takeSoleSubtrees(*node->links);
    }
}

DiskNode::DiskNode(DiskNode&& other) noexcept
    : text(other.text), links(std::exchange(other.links, nullptr)), bytes(other.bytes), items(other.items),
      nameOffset(other.nameOffset), nameLength(other.nameLength), flags(other.flags) {}

std::span<const DiskNode::Pointer> DiskNode::children() const {
    if (!links)
        return {};
    return {links->slots(), links->count};
}

std::string DiskNode::path() const {
    std::string out;
    appendPath(out);
    return out;
}

void DiskNode::appendPath(std::string& out) const {
    const FolderPath& folder = *text->folder;
    folder.appendTo(out);
    if (!(flags & folderItselfFlag)) {
        if (folder.separated())
            out += '/';
        out += lastUrlComponent();
    }
}

bool DiskNode::pathEquals(std::string_view path) const {
    const FolderPath& folder = *text->folder;
    if (flags & folderItselfFlag)
        return folder.equals(path);
    const std::size_t gap = folder.separated() ? 1 : 0;
    const std::string_view last = lastUrlComponent();
    return path.size() == folder.size() + gap + last.size() && path.ends_with(last) &&
           (gap == 0 || path[folder.size()] == '/') && folder.isPrefixOf(path);
}

bool DiskNode::pathIsPrefixOf(std::string_view path) const {
    const FolderPath& folder = *text->folder;
    if (!folder.isPrefixOf(path))
        return false;
    path.remove_prefix(folder.size());
    if (flags & folderItselfFlag)
        return path.empty() || path.starts_with('/') || !folder.separated();
    if (folder.separated()) {
        if (!path.starts_with('/'))
            return false;
        path.remove_prefix(1);
    }
    const std::string_view last = lastUrlComponent();
    return path.starts_with(last) && (path.size() == last.size() || path[last.size()] == '/');
}

bool DiskNode::pathIsPrefixBelow(const DiskNode& parent, std::string_view path) const {
    const FolderPath* above = parent.text->folder.get();
    const FolderPath* folder = text->folder.get();
    std::string_view last;
    if ((flags & folderItselfFlag) && folder->parentPath() == above && (parent.flags & folderItselfFlag))
        last = folder->lastName();
    else if (!(flags & folderItselfFlag) && folder == above && (parent.flags & folderItselfFlag))
        last = lastUrlComponent();
    else
        return pathIsPrefixOf(path); // built from whole paths: compare them whole
    std::size_t start = above->size();
    if (above->separated()) {
        if (path.size() <= start || path[start] != '/')
            return false;
        ++start;
    }
    const std::size_t end = start + last.size();
    return path.size() >= end && path.compare(start, last.size(), last) == 0 &&
           (path.size() == end || path[end] == '/');
}

DiskNode::Pointer DiskNode::find(const Pointer& node, const URL& url) {
    return find(node, standardizedPath(url.path()));
}

// A child's path is a prefix of the path looked for only on the way to it, and at most one child
// is on that way, so the search is a loop, however deep the tree.
DiskNode::Pointer DiskNode::find(const Pointer& node, std::string_view path) {
    if (!node->pathIsPrefixOf(path))
        return nullptr;
    for (Pointer at = node; at;) {
        if (at->pathEquals(path))
            return at;
        Pointer next;
        for (const Pointer& child : at->children())
            if (child->pathIsPrefixBelow(*at, path)) {
                next = child;
                break;
            }
        at = std::move(next);
    }
    return nullptr;
}

std::optional<std::vector<DiskNode::Pointer>> DiskNode::pathTo(const Pointer& node, const URL& url) {
    return pathTo(node, standardizedPath(url.path()));
}

std::optional<std::vector<DiskNode::Pointer>> DiskNode::pathTo(const Pointer& node, std::string_view path) {
    if (!node->pathIsPrefixOf(path))
        return std::nullopt;
    std::vector<Pointer> way{node};
    while (!way.back()->pathEquals(path)) {
        const Pointer& at = way.back();
        const auto children = at->children();
        const auto next = std::find_if(children.begin(), children.end(),
                                       [&](const Pointer& child) { return child->pathIsPrefixBelow(*at, path); });
        if (next == children.end())
            return std::nullopt;
        way.push_back(*next);
    }
    return way;
}

DiskNode::Pointer DiskNode::removing(const Pointer& node, const std::unordered_set<URL>& urls) {
    if (node->children().empty())
        return node;
    if (std::none_of(urls.begin(), urls.end(),
                     [&](const URL& url) { return node->pathIsPrefixOf(url.path()); }))
        return node;
    std::vector<Pointer> kept;
    kept.reserve(node->children().size());
    bool changed = false;
    std::int64_t size = 0, count = 0;
    for (const Pointer& child : node->children()) {
        if (urls.contains(child->url())) {
            changed = true;
            continue;
        }
        Pointer after = removing(child, urls);
        changed = changed || after != child;
        size += after->size();
        count += after->itemCount();
        kept.push_back(std::move(after));
    }
    if (!changed)
        return node; // a prefix matched but nothing below was removed: keep sharing
    orderChildren(kept);
    // A node with children always holds what keeps its text alive.
    return std::make_shared<const DiskNode>(*node->text, node->links->owner, node->flags & folderItselfFlag,
                                            node->nameOffset, node->nameLength, size, node->isDirectory(),
                                            count, node->isAggregate(), std::move(kept));
}

std::string_view DiskNode::lastComponent(std::string_view path) {
    while (path.size() > 1 && path.ends_with('/'))
        path.remove_suffix(1);
    if (path == "/")
        return path;
    const std::size_t slash = path.rfind('/');
    return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

void DiskNode::appendChild(std::string& out, std::string_view folder, std::string_view name) {
    out += folder;
    if (separated(folder))
        out += '/';
    out += name;
}

bool largestFirst(const DiskNode& a, const DiskNode& b) {
    if (a.size() != b.size())
        return a.size() > b.size();
    return a.name() < b.name();
}

void orderChildren(std::vector<DiskNode::Pointer>& children) {
    std::sort(children.begin(), children.end(), [](const DiskNode::Pointer& a, const DiskNode::Pointer& b) {
        if (a->isAggregate() != b->isAggregate())
            return b->isAggregate();
        return !a->isAggregate() && largestFirst(*a, *b);
    });
}

} // namespace CleanerCore
