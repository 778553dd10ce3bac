#include "CleanerCore/Platform/FlatpakUpdates.hpp"

#include "CleanerCore/Platform/AppStream.hpp"
#include "CleanerCore/Platform/FlatpakInstallations.hpp"
#include "CleanerCore/Updates/AppVersion.hpp"

#include <map>
#include <memory>
#include <set>

namespace CleanerCore::Platform {
namespace {

std::string text(const char* value) { return value != nullptr ? value : ""; }

FlatpakInstallationPath where(::FlatpakInstallation* installation) {
    FlatpakInstallationPath path;
    const GObjectPointer<GFile> file(flatpak_installation_get_path(installation));
    char* raw = file ? g_file_get_path(file.get()) : nullptr;
    path.path = text(raw);
    g_free(raw);
    path.isUser = flatpak_installation_get_is_user(installation);
    return path;
}

// The remote's AppStream collection as the installation keeps it after a refresh.
std::optional<std::string> remoteVersion(const std::string& installation, const std::string& remote,
                                         const std::string& arch, const std::string& id) {
    const std::string folder = installation + "/appstream/" + remote + "/" + arch + "/active/";
    for (const char* name : {"appstream.xml.gz", "appstream.xml"})
        if (auto component = appStreamComponent(folder + name, id))
            return component->version;
    return std::nullopt;
}

std::optional<std::string> installedVersion(::FlatpakInstalledRef* ref, const std::string& deploy, const std::string& id) {
    if (const char* version = flatpak_installed_ref_get_appdata_version(ref); version != nullptr && *version != '\0')
        return std::string(version);
    const std::string share = deploy + "/files/share/";
    for (const std::string& path : {share + "app-info/xmls/" + id + ".xml.gz", share + "metainfo/" + id + ".metainfo.xml",
                                    share + "appdata/" + id + ".appdata.xml"})
        if (auto component = appStreamComponent(path, id))
            return component->version;
    return std::nullopt;
}

// The commit the remote offers for `ref`: asked of the remote, or from its cached summary offline.
std::string offeredCommit(::FlatpakInstallation* installation, ::FlatpakInstalledRef* installed, bool offline) {
    auto* ref = FLATPAK_REF(installed);
    GError* error = nullptr;
    const GObjectPointer<FlatpakRemoteRef> remote(flatpak_installation_fetch_remote_ref_sync_full(
        installation, flatpak_installed_ref_get_origin(installed), flatpak_ref_get_kind(ref), flatpak_ref_get_name(ref),
        flatpak_ref_get_arch(ref), flatpak_ref_get_branch(ref),
        offline ? FLATPAK_QUERY_FLAGS_ONLY_CACHED : FLATPAK_QUERY_FLAGS_NONE, nullptr, &error));
    g_clear_error(&error);
    if (remote)
        return text(flatpak_ref_get_commit(FLATPAK_REF(remote.get())));
    return text(flatpak_installed_ref_get_latest_commit(installed));
}

} // namespace

std::vector<FlatpakUpdate> flatpakUpdates(bool offline) {
    std::vector<FlatpakUpdate> updates;
    for (const auto& installation : openFlatpakInstallations()) {
        const FlatpakInstallationPath path = where(installation.get());
        if (path.path.empty())
            continue;
        GError* error = nullptr;
        // Online, libflatpak decides what has an update; offline, a cached remote commit that
        // differs from the installed one is all there is to go on.
        PointerArray refs{offline ? flatpak_installation_list_installed_refs_by_kind(installation.get(), FLATPAK_REF_KIND_APP,
                                                                                     nullptr, &error)
                                  : flatpak_installation_list_installed_refs_for_update(installation.get(), nullptr, &error)};
        g_clear_error(&error);
        if (!refs)
            continue;
        std::set<std::pair<std::string, std::string>> refreshed; // remote and arch
        for (guint i = 0; i < refs->len; ++i) {
            auto* installed = FLATPAK_INSTALLED_REF(g_ptr_array_index(refs.get(), i));
            auto* ref = FLATPAK_REF(installed);
            if (flatpak_ref_get_kind(ref) != FLATPAK_REF_KIND_APP)
                continue;
            FlatpakUpdate update;
            update.id = text(flatpak_ref_get_name(ref));
            update.branch = text(flatpak_ref_get_branch(ref));
            update.origin = text(flatpak_installed_ref_get_origin(installed));
            update.deployPath = text(flatpak_installed_ref_get_deploy_dir(installed));
            update.installation = path;
            update.installedCommit = text(flatpak_ref_get_commit(ref));
            update.installedVersion = installedVersion(installed, update.deployPath, update.id);
            update.offeredCommit = offeredCommit(installation.get(), installed, offline);
            const bool newCommit = !update.offeredCommit.empty() && update.offeredCommit != update.installedCommit;
            if (!offline && !newCommit)
                continue;
            const std::string arch = text(flatpak_ref_get_arch(ref));
            if (!offline && refreshed.emplace(update.origin, arch).second) {
                flatpak_installation_update_appstream_sync(installation.get(), update.origin.c_str(), arch.c_str(),
                                                           nullptr, nullptr, &error);
                g_clear_error(&error);
            }
            update.offeredVersion = remoteVersion(path.path, update.origin, arch, update.id);
            // Offline, the remote's AppStream data from the last refresh also tells of a newer version.
            const bool newerListed = update.offeredVersion && update.installedVersion &&
                                     AppVersion::isNewer(*update.offeredVersion, *update.installedVersion);
            if (newCommit || newerListed)
                updates.push_back(std::move(update));
        }
    }
    return updates;
}

namespace {

struct TransactionStages {
    const std::function<void(FlatpakUpdateStage)>* progress;
    bool downloading = false;
    bool installing = false;

    void reach(FlatpakUpdateStage stage) {
        bool& reached = stage == FlatpakUpdateStage::downloading ? downloading : installing;
        if (stage == FlatpakUpdateStage::installing && !downloading)
            reach(FlatpakUpdateStage::downloading);
        if (!reached) {
            reached = true;
            (*progress)(stage);
        }
    }
};

// The pull reports up to 100 per cent; what follows is the deploy.
void progressChanged(FlatpakTransactionProgress* progress, gpointer data) {
    if (flatpak_transaction_progress_get_progress(progress) >= 100)
        static_cast<TransactionStages*>(data)->reach(FlatpakUpdateStage::installing);
}

void newOperation(FlatpakTransaction*, FlatpakTransactionOperation*, FlatpakTransactionProgress* progress,
                  gpointer data) {
    static_cast<TransactionStages*>(data)->reach(FlatpakUpdateStage::downloading);
    g_signal_connect(progress, "changed", G_CALLBACK(progressChanged), data);
}

void operationDone(FlatpakTransaction*, FlatpakTransactionOperation*, const char*, FlatpakTransactionResult,
                   gpointer data) {
    static_cast<TransactionStages*>(data)->reach(FlatpakUpdateStage::installing);
}

[[noreturn]] void fail(GError* error, const char* fallback) {
    const std::string message = error != nullptr && error->message != nullptr ? error->message : fallback;
    g_clear_error(&error);
    throw FlatpakUpdateError(message);
}

} // namespace

void installFlatpakUpdate(const FlatpakUpdate& update, const std::function<void(FlatpakUpdateStage)>& progress,
                          std::stop_token stop) {
    GObjectPointer<::FlatpakInstallation> installation;
    for (auto& opened : openFlatpakInstallations())
        if (where(opened.get()) == update.installation) {
            installation = std::move(opened);
            break;
        }
    if (!installation)
        throw FlatpakUpdateError("installation not found: " + update.installation.path);

    GError* error = nullptr;
    const GObjectPointer<FlatpakInstalledRef> installed(flatpak_installation_get_installed_ref(
        installation.get(), FLATPAK_REF_KIND_APP, update.id.c_str(), nullptr, update.branch.c_str(), nullptr, &error));
    if (!installed)
        fail(error, "not installed");
    char* ref = flatpak_ref_format_ref(FLATPAK_REF(installed.get()));
    const std::string refText = text(ref);
    g_free(ref);

    const GObjectPointer<FlatpakTransaction> transaction(
        flatpak_transaction_new_for_installation(installation.get(), nullptr, &error));
    if (!transaction)
        fail(error, "no transaction");
    if (!flatpak_transaction_add_update(transaction.get(), refText.c_str(), nullptr, nullptr, &error))
        fail(error, "update refused");
    TransactionStages stages{&progress};
    g_signal_connect(transaction.get(), "new-operation", G_CALLBACK(newOperation), &stages);
    g_signal_connect(transaction.get(), "operation-done", G_CALLBACK(operationDone), &stages);
    const GObjectPointer<GCancellable> cancellable(g_cancellable_new());
    const std::stop_callback cancel(stop, [&cancellable] { g_cancellable_cancel(cancellable.get()); });
    if (!flatpak_transaction_run(transaction.get(), cancellable.get(), &error))
        fail(error, "update failed");
}

} // namespace CleanerCore::Platform
