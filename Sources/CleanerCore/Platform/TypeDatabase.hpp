#pragma once

#include <optional>
#include <string>
#include <string_view>

// The system's database of file types: shared-mime-info, read through GIO. Thread-safe.
namespace CleanerCore::Platform::TypeDatabase {

// The content type the database gives a file named "file.<extension>" from its name alone, such as
// "video/mp4"; absent for an empty extension or one the database does not know.
std::optional<std::string> typeForExtension(std::string_view extension);

// Whether `type` is `supertype` or derives from it. "video/*" stands for a whole media type.
bool conforms(const std::string& type, const char* supertype);

} // namespace CleanerCore::Platform::TypeDatabase
