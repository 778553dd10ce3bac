#include "CleanerCore/Platform/FlatpakInstallations.hpp"

namespace CleanerCore::Platform {

std::vector<GObjectPointer<::FlatpakInstallation>> openFlatpakInstallations() {
    std::vector<GObjectPointer<::FlatpakInstallation>> opened;
    GError* error = nullptr;
    if (::FlatpakInstallation* user = flatpak_installation_new_user(nullptr, &error))
        opened.emplace_back(user);
    g_clear_error(&error);
    if (PointerArray system{flatpak_get_system_installations(nullptr, &error)}) {
        for (guint i = 0; i < system->len; ++i)
            opened.emplace_back(
                static_cast<::FlatpakInstallation*>(g_object_ref(g_ptr_array_index(system.get(), i))));
    }
    g_clear_error(&error);
    return opened;
}

} // namespace CleanerCore::Platform
