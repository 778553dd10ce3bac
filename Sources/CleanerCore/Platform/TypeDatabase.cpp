#include "CleanerCore/Platform/TypeDatabase.hpp"

#include <gio/gio.h>

#include <memory>

namespace CleanerCore::Platform::TypeDatabase {

std::optional<std::string> typeForExtension(std::string_view extension) {
    if (extension.empty())
        return std::nullopt;
    const std::string name = "file." + std::string(extension);
    gboolean uncertain = FALSE;
    const std::unique_ptr<gchar, decltype(&g_free)> type(
        g_content_type_guess(name.c_str(), nullptr, 0, &uncertain), &g_free);
    // Without content to look at, a name the database has no glob for comes back as plain bytes.
    if (!type || g_content_type_is_unknown(type.get()))
        return std::nullopt;
    return std::string(type.get());
}

bool conforms(const std::string& type, const char* supertype) {
    return g_content_type_is_a(type.c_str(), supertype) != FALSE;
}

} // namespace CleanerCore::Platform::TypeDatabase
