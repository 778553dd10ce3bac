#include "CleanerCore/LargeFiles/FileKind.hpp"

#include "CleanerCore/Display/CoreL10n.hpp"
#include "CleanerCore/Platform/TypeDatabase.hpp"

#include <algorithm>
#include <initializer_list>

namespace CleanerCore {
namespace {

using Platform::TypeDatabase::conforms;

bool conformsToAny(const std::string& type, std::initializer_list<const char*> supertypes) {
    return std::any_of(supertypes.begin(), supertypes.end(),
                       [&](const char* supertype) { return conforms(type, supertype); });
}

// The database's families for each test. Its cd images derive from raw disk images, its
// compressed tarballs from their compressors.
bool isDiskImage(const std::string& type) {
    return conformsToAny(type, {"application/x-raw-disk-image", "application/x-apple-diskimage",
                                "application/x-qemu-disk", "application/x-vdi-disk",
                                "application/x-vmdk-disk", "application/x-vhdx-disk"});
}

bool isDocument(const std::string& type) {
    return conformsToAny(
        type,
        {// PDF, presentations, spreadsheets
         "application/pdf", "application/vnd.ms-powerpoint",
         "application/vnd.openxmlformats-officedocument.presentationml.presentation",
         "application/vnd.oasis.opendocument.presentation", "application/vnd.apple.keynote",
         "application/vnd.ms-excel", "application/vnd.openxmlformats-officedocument.spreadsheetml.sheet",
         "application/vnd.oasis.opendocument.spreadsheet", "application/vnd.apple.numbers",
         // text of any kind (markup, source, CSV...)
         "text/plain",
         // documents that hold text, pictures and layout together
         "application/msword", "application/vnd.openxmlformats-officedocument.wordprocessingml.document",
         "application/vnd.oasis.opendocument.text", "application/rtf", "application/epub+zip",
         "application/vnd.apple.pages"});
}

// Office documents are zip files underneath, and the database says so; to the user they are
// documents, so a zip container counts as an archive only when it is no document.
bool isArchive(const std::string& type) {
    return conformsToAny(type,
                         {"application/zip", "application/x-tar", "application/gzip", "application/x-bzip",
                          "application/x-bzip2", "application/x-bzip-compressed-tar", "application/x-xz",
                          "application/zstd", "application/x-7z-compressed", "application/vnd.rar",
                          "application/x-rar", "application/x-archive", "application/x-cpio",
                          "application/x-lzma", "application/x-lzip", "application/x-compress",
                          "application/x-rpm", "application/vnd.debian.binary-package"}) &&
           !isDocument(type);
}

std::string lowercased(std::string_view text) {
    std::string out(text);
    std::transform(out.begin(), out.end(), out.begin(),
                   [](unsigned char c) { return static_cast<char>(c >= 'A' && c <= 'Z' ? c + 32 : c); });
    return out;
}

} // namespace

std::string_view rawValue(FileKind kind) {
    switch (kind) {
    case FileKind::video:
        return "video";
    case FileKind::audio:
        return "audio";
    case FileKind::image:
        return "image";
    case FileKind::archive:
        return "archive";
    case FileKind::diskImage:
        return "diskImage";
    case FileKind::document:
        return "document";
    case FileKind::other:
        break;
    }
    return "other";
}

template <> std::optional<FileKind> fromRaw<FileKind>(std::string_view raw) {
    for (FileKind kind : allFileKinds)
        if (rawValue(kind) == raw)
            return kind;
    return std::nullopt;
}

std::string_view titleKey(FileKind kind) {
    switch (kind) {
    case FileKind::video:
        return "core.fileKind.video";
    case FileKind::audio:
        return "core.fileKind.audio";
    case FileKind::image:
        return "core.fileKind.image";
    case FileKind::archive:
        return "core.fileKind.archive";
    case FileKind::diskImage:
        return "core.fileKind.diskImage";
    case FileKind::document:
        return "core.fileKind.document";
    case FileKind::other:
        break;
    }
    return "core.fileKind.other";
}

std::string title(FileKind kind, const std::optional<std::string>& locale) {
    return CoreL10n::string(titleKey(kind), locale);
}

FileKind fileKindOfExtension(std::string_view extension) {
    const std::optional<std::string> type = Platform::TypeDatabase::typeForExtension(lowercased(extension));
    if (!type)
        return FileKind::other;
    if (isDiskImage(*type))
        return FileKind::diskImage;
    if (conforms(*type, "video/*"))
        return FileKind::video;
    if (conforms(*type, "audio/*"))
        return FileKind::audio;
    if (conforms(*type, "image/*"))
        return FileKind::image;
    if (isArchive(*type))
        return FileKind::archive;
    if (isDocument(*type))
        return FileKind::document;
    return FileKind::other;
}

FileKind fileKindOf(const URL& url) {
    return fileKindOfExtension(url.pathExtension());
}

} // namespace CleanerCore
