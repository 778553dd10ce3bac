#include "DiskTreeJson.hpp"

#include "JsonText.hpp"

#include <charconv>
#include <ostream>
#include <vector>

namespace ZephraneCli {
namespace {

constexpr std::size_t flushAt = 256 * 1024;

void appendNumber(std::string& out, std::int64_t value) {
    char digits[24];
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    out.append(digits, end);
}

} // namespace

DiskTreeJson::DiskTreeJson(std::ostream& out) : out(out) {
    buffer.reserve(flushAt + 64 * 1024);
}

DiskTreeJson::~DiskTreeJson() {
    if (!buffer.empty())
        out.write(buffer.data(), static_cast<std::streamsize>(buffer.size()));
}

void DiskTreeJson::write(const CleanerCore::DiskNode& root, std::int64_t unreadable) {
    buffer += '{';
    JsonText::appendName(buffer, "path", root.path());
    buffer += ",\"unreadable\":";
    appendNumber(buffer, unreadable);
    buffer += ',';
    node(root);
    buffer += '\n';
    out.write(buffer.data(), static_cast<std::streamsize>(buffer.size()));
    buffer.clear();
    out.flush();
}

// The node's fields and its children, without the opening brace. Written with a stack of its own,
// so a chain of any depth can't exhaust the thread's stack.
void DiskTreeJson::node(const CleanerCore::DiskNode& top) {
    struct Open {
        const CleanerCore::DiskNode* node;
        std::size_t next;
    };
    std::vector<Open> stack;
    const CleanerCore::DiskNode* current = &top;
    for (;;) {
        JsonText::appendName(buffer, "name", current->name());
        buffer += ",\"size\":";
        appendNumber(buffer, current->size());
        buffer += ",\"itemCount\":";
        appendNumber(buffer, current->itemCount());
        buffer += current->isDirectory() ? ",\"isDirectory\":true" : ",\"isDirectory\":false";
        buffer += current->isAggregate() ? ",\"isAggregate\":true" : ",\"isAggregate\":false";
        buffer += ",\"children\":[";
        flushIfFull();
        stack.push_back({current, 0});
        current = nullptr;
        while (!stack.empty()) {
            Open& open = stack.back();
            const auto children = open.node->children();
            if (open.next < children.size()) {
                if (open.next > 0)
                    buffer += ',';
                buffer += '{';
                current = children[open.next++].get();
                break;
            }
            buffer += "]}";
            stack.pop_back();
        }
        if (!current)
            return;
    }
}

void DiskTreeJson::flushIfFull() {
    if (buffer.size() < flushAt)
        return;
    out.write(buffer.data(), static_cast<std::streamsize>(buffer.size()));
    buffer.clear();
}

} // namespace ZephraneCli
