#include "CleanerCore/DiskTree/DiskNode.hpp"

#include <algorithm>
#include <cstddef>
#include <new>
#include <utility>

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

DiskNode::DiskNode(const URL& url, std::optional<std::string> name, std::int64_t size, bool isDirectory,
                   std::int64_t itemCount, bool isAggregate, std::vector<Pointer> children)
    : bytes(size), items(itemCount) {
    auto own = std::make_shared<Text>();
    own->chars = url.path();
    own->pathLength = own->chars.size();
    if (name) {
        nameOffset = static_cast<std::uint32_t>(own->chars.size());
        nameLength = clampedLength(name->size());
        own->chars += *name;
    } else {
        const std::string_view last = lastComponent(own->path());
        nameOffset = static_cast<std::uint32_t>(last.data() - own->chars.data());
        nameLength = clampedLength(last.size());
    }
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
    if (links)
        Links::destroy(links);
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
    if (flags & folderItselfFlag)
        out += text->path();
    else
        appendChild(out, text->path(), lastUrlComponent());
}

bool DiskNode::pathEquals(std::string_view path) const {
    const std::string_view folder = text->path();
    if (flags & folderItselfFlag)
        return path == folder;
    const std::size_t gap = separated(folder) ? 1 : 0;
    const std::string_view last = lastUrlComponent();
    return path.size() == folder.size() + gap + last.size() && path.starts_with(folder) &&
           (gap == 0 || path[folder.size()] == '/') && path.ends_with(last);
}

bool DiskNode::pathIsPrefixOf(std::string_view path) const {
    const std::string_view folder = text->path();
    if (!path.starts_with(folder))
        return false;
    if (flags & folderItselfFlag)
        return true;
    path.remove_prefix(folder.size());
    if (separated(folder)) {
        if (!path.starts_with('/'))
            return false;
        path.remove_prefix(1);
    }
    return path.starts_with(lastUrlComponent());
}

DiskNode::Pointer DiskNode::find(const Pointer& node, const URL& url) {
    return find(node, standardizedPath(url.path()));
}

DiskNode::Pointer DiskNode::find(const Pointer& node, std::string_view path) {
    if (node->pathEquals(path))
        return node;
    if (!node->pathIsPrefixOf(path))
        return nullptr;
    for (const Pointer& child : node->children())
        if (Pointer hit = find(child, path))
            return hit;
    return nullptr;
}

std::optional<std::vector<DiskNode::Pointer>> DiskNode::pathTo(const Pointer& node, const URL& url) {
    return pathTo(node, standardizedPath(url.path()));
}

std::optional<std::vector<DiskNode::Pointer>> DiskNode::pathTo(const Pointer& node, std::string_view path) {
    if (node->pathEquals(path))
        return std::vector<Pointer>{node};
    if (!node->pathIsPrefixOf(path))
        return std::nullopt;
    for (const Pointer& child : node->children()) {
        if (auto below = pathTo(child, path)) {
            below->insert(below->begin(), node);
            return below;
        }
    }
    return std::nullopt;
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
