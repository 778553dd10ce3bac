#include "CleanerCore/Platform/InstalledFlatpaks.hpp"

#include "CleanerCore/Platform/AppStream.hpp"
#include "CleanerCore/Platform/FlatpakInstallations.hpp"

#include <memory>

namespace CleanerCore::Platform {

namespace {

std::optional<std::string> text(const char* value) {
    if (value == nullptr || *value == '\0')
        return std::nullopt;
    return std::string(value);
}

std::string pathOf(FlatpakInstallationPath& out, ::FlatpakInstallation* installation) {
    const GObjectPointer<GFile> file(flatpak_installation_get_path(installation));
    char* path = file ? g_file_get_path(file.get()) : nullptr;
    out.path = path ? path : "";
    g_free(path);
    out.isUser = flatpak_installation_get_is_user(installation);
    return out.path;
}

// Flatpak keeps an app's AppStream data in one of these, newest convention first.
void completeFromAppStream(InstalledFlatpak& ref) {
    if (ref.name && ref.version)
        return;
    const std::string share = ref.deployPath + "/files/share/";
    for (const std::string& path :
         {share + "app-info/xmls/" + ref.id + ".xml.gz", share + "metainfo/" + ref.id + ".metainfo.xml",
          share + "appdata/" + ref.id + ".appdata.xml"}) {
        if (const auto component = appStreamComponent(path, ref.id)) {
            if (!ref.name)
                ref.name = component->name;
            if (!ref.version)
                ref.version = component->version;
            return;
        }
    }
}

} // namespace

std::vector<FlatpakInstallationPath> flatpakInstallations() {
    std::vector<FlatpakInstallationPath> found;
    for (const auto& installation : openFlatpakInstallations()) {
        FlatpakInstallationPath entry;
        if (!pathOf(entry, installation.get()).empty())
            found.push_back(std::move(entry));
    }
    return found;
}

std::vector<InstalledFlatpak> installedFlatpaks() {
    std::vector<InstalledFlatpak> refs;
    for (const auto& installation : openFlatpakInstallations()) {
        FlatpakInstallationPath where;
        if (pathOf(where, installation.get()).empty())
            continue;
        GError* error = nullptr;
        const PointerArray installed{
            flatpak_installation_list_installed_refs(installation.get(), nullptr, &error)};
        g_clear_error(&error);
        if (!installed)
            continue;
        for (guint i = 0; i < installed->len; ++i) {
            auto* ref = FLATPAK_INSTALLED_REF(g_ptr_array_index(installed.get(), i));
            auto* plain = FLATPAK_REF(ref);
            const char* id = flatpak_ref_get_name(plain);
            const char* deploy = flatpak_installed_ref_get_deploy_dir(ref);
            if (id == nullptr || deploy == nullptr)
                continue;
            InstalledFlatpak entry{
                id,
                flatpak_ref_get_branch(plain) ? flatpak_ref_get_branch(plain) : "",
                flatpak_ref_get_kind(plain) == FLATPAK_REF_KIND_APP,
                text(flatpak_installed_ref_get_appdata_name(ref)),
                text(flatpak_installed_ref_get_appdata_version(ref)),
                deploy,
                static_cast<std::int64_t>(flatpak_installed_ref_get_installed_size(ref)),
                flatpak_installed_ref_get_origin(ref) ? flatpak_installed_ref_get_origin(ref) : "",
                where};
            if (entry.isApp)
                completeFromAppStream(entry);
            refs.push_back(std::move(entry));
        }
    }
    return refs;
}

} // namespace CleanerCore::Platform
