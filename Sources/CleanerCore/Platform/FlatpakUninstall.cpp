#include "CleanerCore/Platform/FlatpakUninstall.hpp"

#include "CleanerCore/Display/CoreL10n.hpp"

#include <flatpak/flatpak.h>

#include <memory>
#include <vector>

namespace CleanerCore::Platform {

namespace {

struct ObjectUnref {
    void operator()(gpointer object) const { g_object_unref(object); }
};

std::vector<std::string> split(const std::string& path) {
    std::vector<std::string> parts;
    std::size_t start = 0;
    while (start <= path.size()) {
        const std::size_t end = path.find('/', start);
        const std::string part = path.substr(start, end == std::string::npos ? std::string::npos : end - start);
        if (!part.empty())
            parts.push_back(part);
        if (end == std::string::npos)
            break;
        start = end + 1;
    }
    return parts;
}

// Why the transaction failed, in words the user can act on.
std::string reasonOf(const GError* error) {
    if (error == nullptr)
        return CoreL10n::string("core.uninstall.failure.unknown");
    if (g_error_matches(error, G_IO_ERROR, G_IO_ERROR_PERMISSION_DENIED) ||
        g_error_matches(error, FLATPAK_ERROR, FLATPAK_ERROR_PERMISSION_DENIED) ||
        g_error_matches(error, G_DBUS_ERROR, G_DBUS_ERROR_ACCESS_DENIED) ||
        g_error_matches(error, G_DBUS_ERROR, G_DBUS_ERROR_AUTH_FAILED) ||
        g_error_matches(error, G_IO_ERROR, G_IO_ERROR_CANCELLED) ||
        g_error_matches(error, FLATPAK_ERROR, FLATPAK_ERROR_ABORTED))
        return CoreL10n::string("core.uninstall.failure.password");
    if (g_error_matches(error, FLATPAK_ERROR, FLATPAK_ERROR_NOT_INSTALLED))
        return CoreL10n::string("core.uninstall.failure.notInstalled");
    if (g_error_matches(error, FLATPAK_ERROR, FLATPAK_ERROR_RUNTIME_USED))
        return CoreL10n::string("core.uninstall.failure.inUse");
    return CoreL10n::format("core.uninstall.failure.other", std::nullopt, {std::string(error->message)});
}

} // namespace

std::optional<FlatpakDeployment> flatpakDeployment(const std::string& deployPath) {
    std::vector<std::string> parts = split(deployPath);
    // .../<installation>/app/<id>/<arch>/<branch>/active (or a commit folder in place of "active")
    if (parts.size() < 6 || parts[parts.size() - 5] != "app")
        return std::nullopt;
    const std::size_t n = parts.size();
    FlatpakDeployment found;
    found.ref = "app/" + parts[n - 4] + "/" + parts[n - 3] + "/" + parts[n - 2];
    for (std::size_t i = 0; i + 5 < n; ++i)
        found.installation += "/" + parts[i];
    return found;
}

std::optional<std::string> uninstallFlatpak(const std::string& deployPath) {
    const auto deployment = flatpakDeployment(deployPath);
    if (!deployment)
        return CoreL10n::string("core.uninstall.failure.notInstalled");
    GError* error = nullptr;
    // The installation is found by its path among those libflatpak knows, so the user's is opened
    // as the user's (no helper, no password) and a system one goes through the system helper.
    std::unique_ptr<FlatpakInstallation, ObjectUnref> installation;
    const std::unique_ptr<GFile, ObjectUnref> wanted(g_file_new_for_path(deployment->installation.c_str()));
    if (FlatpakInstallation* user = flatpak_installation_new_user(nullptr, nullptr)) {
        const std::unique_ptr<GFile, ObjectUnref> path(flatpak_installation_get_path(user));
        if (g_file_equal(path.get(), wanted.get()))
            installation.reset(user);
        else
            g_object_unref(user);
    }
    if (!installation) {
        if (GPtrArray* system = flatpak_get_system_installations(nullptr, nullptr)) {
            for (guint i = 0; i < system->len && !installation; ++i) {
                auto* candidate = FLATPAK_INSTALLATION(g_ptr_array_index(system, i));
                const std::unique_ptr<GFile, ObjectUnref> path(flatpak_installation_get_path(candidate));
                if (g_file_equal(path.get(), wanted.get()))
                    installation.reset(FLATPAK_INSTALLATION(g_object_ref(candidate)));
            }
            g_ptr_array_unref(system);
        }
    }
    if (!installation)
        return CoreL10n::string("core.uninstall.failure.notInstalled");

    const std::unique_ptr<FlatpakTransaction, ObjectUnref> transaction(
        flatpak_transaction_new_for_installation(installation.get(), nullptr, &error));
    if (!transaction) {
        std::string reason = reasonOf(error);
        g_clear_error(&error);
        return reason;
    }
    // Interaction stays allowed so that polkit may ask for the password of a system installation.
    flatpak_transaction_set_disable_related(transaction.get(), TRUE);
    if (!flatpak_transaction_add_uninstall(transaction.get(), deployment->ref.c_str(), &error) ||
        !flatpak_transaction_run(transaction.get(), nullptr, &error)) {
        std::string reason = reasonOf(error);
        g_clear_error(&error);
        return reason;
    }
    return std::nullopt;
}

} // namespace CleanerCore::Platform
