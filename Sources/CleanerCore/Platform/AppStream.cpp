#include "CleanerCore/Platform/AppStream.hpp"

#include "CleanerCore/Platform/SmallFile.hpp"

#include <expat.h>
#include <gio/gio.h>

#include <array>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <memory>

namespace CleanerCore::Platform {

namespace {

// Where the parser stands; only what a component's id, name and releases need is tracked.
struct Reader {
    std::vector<AppStreamComponent> components;
    int depth = 0;
    int componentDepth = -1; // depth of the open <component>, -1 outside one
    enum class Field { none, id, name } field = Field::none;
    int fieldDepth = -1;
    std::string text;
    bool nameSeen = false;
    std::int64_t newestRelease = -1; // timestamp of the version kept; -1 before any
    AppStreamComponent current;

    void open(const char* element, const char** attributes) {
        ++depth;
        const std::string_view name = element;
        if (name == "component" && componentDepth < 0) {
            componentDepth = depth;
            current = {};
            nameSeen = false;
            newestRelease = -1;
            return;
        }
        if (componentDepth < 0 || field != Field::none)
            return;
        if (depth == componentDepth + 1 && name == "id") {
            field = Field::id;
        } else if (depth == componentDepth + 1 && name == "name" && !nameSeen && !hasLanguage(attributes)) {
            field = Field::name;
        } else if (depth == componentDepth + 2 && name == "release") {
            release(attributes);
            return;
        } else {
            return;
        }
        fieldDepth = depth;
        text.clear();
    }

    void close() {
        if (field != Field::none && depth == fieldDepth) {
            const std::string value = trimmed(text);
            if (field == Field::id)
                current.id = value;
            else if (!value.empty()) {
                current.name = value;
                nameSeen = true;
            }
            field = Field::none;
        }
        if (depth == componentDepth) {
            if (!current.id.empty())
                components.push_back(std::move(current));
            componentDepth = -1;
        }
        --depth;
    }

    void characters(const char* data, int length) {
        // A field far longer than any real id or name is cut rather than grown without bound.
        if (field != Field::none && text.size() < 4096)
            text.append(data, static_cast<std::size_t>(length));
    }

    static bool hasLanguage(const char** attributes) {
        for (int i = 0; attributes[i] != nullptr; i += 2)
            if (std::strcmp(attributes[i], "xml:lang") == 0)
                return true;
        return false;
    }

    // Releases are meant to be listed newest first, but a timestamp, when given, decides.
    void release(const char** attributes) {
        const char* version = nullptr;
        std::int64_t timestamp = 0;
        for (int i = 0; attributes[i] != nullptr; i += 2) {
            const std::string_view key = attributes[i];
            const std::string_view value = attributes[i + 1];
            if (key == "version")
                version = attributes[i + 1];
            else if (key == "timestamp")
                std::from_chars(value.data(), value.data() + value.size(), timestamp);
        }
        if (version == nullptr || *version == '\0')
            return;
        if (!current.version || timestamp > newestRelease) {
            current.version = version;
            newestRelease = timestamp;
        }
    }

    static std::string trimmed(std::string_view value) {
        constexpr std::string_view space = " \t\r\n";
        const std::size_t first = value.find_first_not_of(space);
        if (first == std::string_view::npos)
            return {};
        return std::string(value.substr(first, value.find_last_not_of(space) - first + 1));
    }
};

std::optional<std::string> gunzip(std::string_view bytes, std::size_t limit) {
    const std::unique_ptr<GZlibDecompressor, decltype(&g_object_unref)> decompressor(
        g_zlib_decompressor_new(G_ZLIB_COMPRESSOR_FORMAT_GZIP), &g_object_unref);
    GConverter* converter = G_CONVERTER(decompressor.get());
    std::string out;
    std::array<char, 64 * 1024> buffer{};
    const char* in = bytes.data();
    std::size_t left = bytes.size();
    for (;;) {
        gsize read = 0, written = 0;
        GError* error = nullptr;
        const GConverterResult result =
            g_converter_convert(converter, in, left, buffer.data(), buffer.size(), G_CONVERTER_INPUT_AT_END,
                                &read, &written, &error);
        if (result == G_CONVERTER_ERROR) {
            g_error_free(error);
            return std::nullopt;
        }
        in += read;
        left -= read;
        out.append(buffer.data(), written);
        if (result == G_CONVERTER_FINISHED || out.size() >= limit)
            return out;
        if (read == 0 && written == 0)
            return std::nullopt; // no progress: the stream is cut short
    }
}

} // namespace

std::vector<AppStreamComponent> parseAppStream(std::string_view xml) {
    Reader reader;
    const std::unique_ptr<std::remove_pointer_t<XML_Parser>, decltype(&XML_ParserFree)> parser(
        XML_ParserCreate(nullptr), &XML_ParserFree);
    if (!parser)
        return {};
    XML_SetUserData(parser.get(), &reader);
    XML_SetElementHandler(
        parser.get(),
        [](void* data, const XML_Char* element, const XML_Char** attributes) {
            static_cast<Reader*>(data)->open(element, attributes);
        },
        [](void* data, const XML_Char*) { static_cast<Reader*>(data)->close(); });
    XML_SetCharacterDataHandler(parser.get(), [](void* data, const XML_Char* text, int length) {
        static_cast<Reader*>(data)->characters(text, length);
    });
    // Documents come from outside: no external entities or DTDs are ever loaded.
    XML_SetParamEntityParsing(parser.get(), XML_PARAM_ENTITY_PARSING_NEVER);
    constexpr std::size_t chunk = 1 << 20;
    for (std::size_t offset = 0; offset < xml.size(); offset += chunk) {
        const std::string_view piece = xml.substr(offset, chunk);
        const bool last = offset + chunk >= xml.size();
        if (XML_Parse(parser.get(), piece.data(), static_cast<int>(piece.size()), last) == XML_STATUS_ERROR)
            break;
    }
    return std::move(reader.components);
}

std::optional<std::string> readAppStreamFile(const std::string& path, std::size_t limit) {
    auto bytes = readSmallFile(path, limit);
    if (!bytes)
        return std::nullopt;
    if (bytes->size() >= 2 && static_cast<unsigned char>((*bytes)[0]) == 0x1f &&
        static_cast<unsigned char>((*bytes)[1]) == 0x8b)
        return gunzip(*bytes, limit);
    return bytes;
}

std::optional<AppStreamComponent> appStreamComponent(const std::string& path, std::string_view id) {
    const auto document = readAppStreamFile(path);
    if (!document)
        return std::nullopt;
    for (AppStreamComponent& component : parseAppStream(*document)) {
        std::string_view written = component.id;
        if (written.ends_with(".desktop"))
            written.remove_suffix(8);
        if (written == id)
            return std::move(component);
    }
    return std::nullopt;
}

} // namespace CleanerCore::Platform
