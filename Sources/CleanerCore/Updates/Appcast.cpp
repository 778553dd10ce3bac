#include "CleanerCore/Updates/Appcast.hpp"

#include "CleanerCore/Updates/AppVersion.hpp"
#include "CleanerCore/Updates/WebURL.hpp"

#include <expat.h>

#include <algorithm>
#include <charconv>
#include <cstring>
#include <memory>

namespace CleanerCore {
namespace {

struct QualifiedName {
    std::optional<std::string_view> prefix;
    std::string_view local;
};

QualifiedName split(std::string_view name) {
    const std::size_t colon = name.find(':');
    if (colon == std::string_view::npos)
        return {std::nullopt, name};
    return {name.substr(0, colon), name.substr(colon + 1)};
}

std::string trimmed(std::string_view text) {
    constexpr std::string_view space = " \t\r\n\v\f";
    const std::size_t first = text.find_first_not_of(space);
    if (first == std::string_view::npos)
        return {};
    return std::string(text.substr(first, text.find_last_not_of(space) - first + 1));
}

// An attribute under its exact name, else under any prefix ("sparkle:version", "foo:version").
const char* attribute(const char** attributes, std::string_view name) {
    for (int i = 0; attributes[i] != nullptr; i += 2)
        if (attributes[i] == name)
            return attributes[i + 1];
    for (int i = 0; attributes[i] != nullptr; i += 2) {
        const std::string_view key = attributes[i];
        const std::size_t colon = key.find(':');
        if (colon != std::string_view::npos && key.substr(colon + 1) == name)
            return attributes[i + 1];
    }
    return nullptr;
}

std::optional<std::int64_t> decimal(const char* text) {
    if (text == nullptr)
        return std::nullopt;
    const std::string_view value = text;
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
    if (error != std::errc{} || end != value.data() + value.size())
        return std::nullopt;
    return number;
}

struct ParserState {
    XML_Parser parser = nullptr;
    std::vector<AppcastItem> items;
    std::optional<AppcastItem> current;
    std::string text;
    std::optional<std::string> elementLanguage;

    void start(std::string_view element, const char** attributes) {
        text.clear();
        elementLanguage.reset();
        for (int i = 0; attributes[i] != nullptr; i += 2)
            if (std::strcmp(attributes[i], "xml:lang") == 0)
                elementLanguage = attributes[i + 1];

        const auto [prefix, local] = split(element);
        if (!prefix && local == "item") {
            current.emplace();
            return;
        }
        if (!current)
            return;
        if (prefix && local == "informationalUpdate") {
            current->isInformational = true;
        } else if (!prefix && local == "enclosure") {
            const char* url = attribute(attributes, "url");
            current->enclosureURL = url ? WebURL::httpLink(url) : std::nullopt;
            current->enclosureLength = decimal(attribute(attributes, "length"));
            if (const char* version = attribute(attributes, "version"))
                current->version = version;
            if (const char* shortVersion = attribute(attributes, "shortVersionString"))
                current->shortVersion = shortVersion;
        }
    }

    void end(std::string_view element) {
        const auto [prefix, local] = split(element);
        std::string value = trimmed(text);
        text.clear();
        if (!prefix && local == "item") {
            if (current)
                items.push_back(std::move(*current));
            current.reset();
            return;
        }
        if (!current || value.empty())
            return;
        AppcastItem& item = *current;
        if (prefix) {
            if (local == "version")
                item.version = std::move(value);
            else if (local == "shortVersionString")
                item.shortVersion = std::move(value);
            else if (local == "releaseNotesLink") {
                if (auto url = WebURL::httpLink(value))
                    item.notesLinks.push_back({std::move(*url), elementLanguage});
            } else if (local == "fullReleaseNotesLink")
                item.fullNotesURL = WebURL::httpLink(value);
            else if (local == "minimumSystemVersion")
                item.minimumSystemVersion = std::move(value);
            else if (local == "maximumSystemVersion")
                item.maximumSystemVersion = std::move(value);
            else if (local == "channel")
                item.channel = std::move(value);
        } else if (local == "title") {
            item.title = std::move(value);
        } else if (local == "link") {
            item.link = WebURL::httpLink(value);
        } else if (local == "description") {
            item.descriptionHTML = std::move(value);
            item.descriptionLanguage = elementLanguage;
        }
    }
};

// "pt-BR" and "pt_BR" give "pt"; case does not matter.
std::string languageCode(std::string_view identifier) {
    std::string code(identifier.substr(0, identifier.find_first_of("-_")));
    std::transform(code.begin(), code.end(), code.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return code;
}

} // namespace

bool AppcastItem::supports(const OperatingSystemVersion& system) const {
    const std::string running = system.text();
    if (minimumSystemVersion && AppVersion::isNewer(*minimumSystemVersion, running))
        return false;
    if (maximumSystemVersion && AppVersion::isNewer(running, *maximumSystemVersion))
        return false;
    return true;
}

std::optional<std::string> AppcastItem::displayVersion() const { return shortVersion ? shortVersion : version; }

std::optional<URL> AppcastItem::notesURL(const std::vector<std::string>& preferredLanguages) const {
    if (notesLinks.empty())
        return fullNotesURL ? fullNotesURL : link;
    if (notesLinks.size() == 1)
        return notesLinks.front().url;
    for (const std::string& preferred : preferredLanguages) {
        const std::string wanted = languageCode(preferred);
        for (const NotesLink& notes : notesLinks)
            if (notes.language && languageCode(*notes.language) == wanted)
                return notes.url;
    }
    for (const NotesLink& notes : notesLinks)
        if (!notes.language)
            return notes.url;
    return notesLinks.front().url;
}

namespace Appcast {

std::vector<AppcastItem> items(std::string_view bytes) {
    ParserState state;
    const std::unique_ptr<std::remove_pointer_t<XML_Parser>, decltype(&XML_ParserFree)> parser(
        XML_ParserCreate(nullptr), &XML_ParserFree);
    if (!parser)
        return {};
    state.parser = parser.get();
    XML_SetUserData(parser.get(), &state);
    XML_SetElementHandler(
        parser.get(),
        [](void* data, const XML_Char* element, const XML_Char** attributes) {
            static_cast<ParserState*>(data)->start(element, attributes);
        },
        [](void* data, const XML_Char* element) { static_cast<ParserState*>(data)->end(element); });
    // Plain text and CDATA sections arrive alike; expat has already checked the encoding.
    XML_SetCharacterDataHandler(parser.get(), [](void* data, const XML_Char* text, int length) {
        static_cast<ParserState*>(data)->text.append(text, static_cast<std::size_t>(length));
    });
    // Feeds come from anyone: nothing external is loaded, and a document that declares an entity
    // at all is cut off there, so no expansion can blow up (feeds have no use for entities).
    XML_SetParamEntityParsing(parser.get(), XML_PARAM_ENTITY_PARSING_NEVER);
    XML_SetEntityDeclHandler(parser.get(), [](void* data, const XML_Char*, int, const XML_Char*, int,
                                              const XML_Char*, const XML_Char*, const XML_Char*, const XML_Char*) {
        XML_StopParser(static_cast<ParserState*>(data)->parser, XML_FALSE);
    });
    constexpr std::size_t chunk = 1 << 20;
    std::size_t offset = 0;
    do {
        const std::string_view piece = bytes.substr(offset, chunk);
        const bool last = offset + chunk >= bytes.size();
        if (XML_Parse(parser.get(), piece.data(), static_cast<int>(piece.size()), last) != XML_STATUS_OK)
            break;
        offset += chunk;
    } while (offset < bytes.size());
    return std::move(state.items);
}

std::optional<AppcastItem> bestItem(const std::vector<AppcastItem>& items, const OperatingSystemVersion& system) {
    const auto key = [](const AppcastItem& item) -> std::string_view {
        if (item.version)
            return *item.version;
        if (item.shortVersion)
            return *item.shortVersion;
        return {};
    };
    const AppcastItem* best = nullptr;
    for (const AppcastItem& item : items) {
        if (item.channel || (!item.shortVersion && !item.version) || !item.supports(system))
            continue;
        if (best == nullptr || AppVersion::compare(key(*best), key(item)) < 0)
            best = &item;
    }
    if (best == nullptr)
        return std::nullopt;
    return *best;
}

} // namespace Appcast

} // namespace CleanerCore
