#include "CleanerCore/Platform/FlatpakUninstall.hpp"

#include "CleanerCore/Display/CoreL10n.hpp"
#include "CleanerCore/Files/URL.hpp"
#include "CleanerCore/Platform/FlatpakInstallations.hpp"

#include <memory>
#include <vector>

namespace CleanerCore::Platform {

namespace {

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
    const std::vector<std::string_view> parts = pathComponents(deployPath);
    // .../<installation>/app/<id>/<arch>/<branch>/active (or a commit folder in place of "active")
    if (parts.size() < 6 || parts[parts.size() - 5] != "app")
        return std::nullopt;
    const std::size_t n = parts.size();
    FlatpakDeployment found;
    found.ref = "app/" + std::string(parts[n - 4]) + "/" + std::string(parts[n - 3]) + "/" +
                std::string(parts[n - 2]);
    for (std::size_t i = 0; i + 5 < n; ++i)
        (found.installation += "/") += parts[i];
    return found;
}

std::optional<std::string> uninstallFlatpak(const std::string& deployPath) {
    const auto deployment = flatpakDeployment(deployPath);
    if (!deployment)
        return CoreL10n::string("core.uninstall.failure.notInstalled");
    GError* error = nullptr;
    // The installation is found by its path among those libflatpak knows, so that a user's app is
    // uninstalled without a password.
    GObjectPointer<::FlatpakInstallation> installation;
    const GObjectPointer<GFile> wanted(g_file_new_for_path(deployment->installation.c_str()));
    for (GObjectPointer<::FlatpakInstallation>& candidate : openFlatpakInstallations()) {
        const GObjectPointer<GFile> path(flatpak_installation_get_path(candidate.get()));
        if (g_file_equal(path.get(), wanted.get())) {
            installation = std::move(candidate);
            break;
        }
    }
    if (!installation)
        return CoreL10n::string("core.uninstall.failure.notInstalled");

    const GObjectPointer<FlatpakTransaction> transaction(
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
