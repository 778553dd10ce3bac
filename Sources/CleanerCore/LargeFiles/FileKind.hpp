#pragma once

#include "CleanerCore/Files/URL.hpp"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace CleanerCore {

// What kind of thing a large file is, as the system's type database sees its name.
enum class FileKind { video, audio, image, archive, diskImage, document, other };

inline constexpr std::array<FileKind, 7> allFileKinds{
    FileKind::video,     FileKind::audio,    FileKind::image, FileKind::archive,
    FileKind::diskImage, FileKind::document, FileKind::other};

// The case's name: "video", "diskImage"...
std::string_view rawValue(FileKind kind);

template <class Enum> std::optional<Enum> fromRaw(std::string_view raw);
template <> std::optional<FileKind> fromRaw<FileKind>(std::string_view raw);

// "core.fileKind.<raw value>".
std::string_view titleKey(FileKind kind);
// The kind's name for the user.
std::string title(FileKind kind, const std::optional<std::string>& locale = std::nullopt);

// The kind of the file at `url`, from its extension alone (in lower case): the first of disk image,
// video, audio, image, archive and document whose types the extension's type belongs to; `other`
// when it belongs to none or the database does not know the extension.
FileKind fileKindOf(const URL& url);
FileKind fileKindOfExtension(std::string_view extension);

} // namespace CleanerCore
