#pragma once

#include "CleanerCore/Apps/AppLeftover.hpp"
#include "CleanerCore/Apps/InstalledApp.hpp"
#include "CleanerCore/Apps/LeftoverFinder.hpp"
#include "Modules/Apps/InstalledAppList.hpp"
#include "Modules/Shared/CleanupItemList.hpp"
#include "Modules/Shared/ModulePhaseModel.hpp"

#include <QtQml/qqmlregistration.h>

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

// The apps channel: the installed apps with what each left in the home, sizes measured during the
// scan; one app at a time in the detail pane, whose files are the removable items. A Flatpak is
// uninstalled by its installation, everything else goes through Cleaner.
class UninstallerModel : public ModulePhaseModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The apps model belongs to AppModel")
    Q_PROPERTY(InstalledAppList* apps READ appList CONSTANT)
    Q_PROPERTY(CleanupItemList* files READ fileList NOTIFY selectedAppChanged)
    Q_PROPERTY(QString search READ search WRITE setSearch NOTIFY searchChanged)
    Q_PROPERTY(QString sort READ sortRaw WRITE setSortRaw NOTIFY sortChanged)
    Q_PROPERTY(QStringList sorts READ sorts CONSTANT)
    Q_PROPERTY(QString selectedAppPath READ selectedAppPath WRITE selectAppPath NOTIFY selectedAppChanged)
    Q_PROPERTY(bool hasSelectedApp READ hasSelectedApp NOTIFY selectedAppChanged)
    Q_PROPERTY(QString selectedName READ selectedName NOTIFY selectedAppChanged)
    Q_PROPERTY(QString selectedDetail READ selectedDetail NOTIFY selectedAppChanged)
    Q_PROPERTY(QString selectedIcon READ selectedIcon NOTIFY selectedAppChanged)
    Q_PROPERTY(qint64 selectedTotal READ selectedTotal NOTIFY selectedAppChanged)
    Q_PROPERTY(QString lastUsedText READ lastUsedText NOTIFY selectedAppChanged)
    Q_PROPERTY(QString blocker READ blockerRaw NOTIFY blockerChanged)
    Q_PROPERTY(QString blockerMessage READ blockerMessage NOTIFY blockerChanged)
    Q_PROPERTY(QString blockerButton READ blockerButton NOTIFY blockerChanged)
    Q_PROPERTY(bool quitting READ quitting NOTIFY quittingChanged)
    Q_PROPERTY(QString confirmNote READ confirmNote NOTIFY selectedAppChanged)
    Q_PROPERTY(QString selectedText READ selectedText NOTIFY selectionChanged)

public:
    enum class Sort { size, name, lastUsed };
    using AppSource = std::function<std::vector<CleanerCore::InstalledApp>()>;
    using RunningSource = std::function<std::set<std::string>()>;
    using QuitRequest = std::function<void(const std::string& bundleID)>;
    // What uninstalls a Flatpak: nothing when it went, else the reason.
    using FlatpakUninstaller = std::function<std::optional<std::string>(const CleanerCore::InstalledApp&)>;

    explicit UninstallerModel(Preferences& preferences, QObject* parent = nullptr);

    // The seams a test replaces: the apps, the home whose folders hold leftovers (and where
    // removals act), the running ids, the polite quit and the Flatpak uninstall.
    void setAppSource(AppSource source) { appSource = std::move(source); }
    void setHome(CleanerCore::URL home);
    void setRunningSource(RunningSource source) { runningSource = std::move(source); }
    void setQuitRequest(QuitRequest request) { quitRequest = std::move(request); }
    void setFlatpakUninstaller(FlatpakUninstaller uninstaller) { flatpakUninstaller = std::move(uninstaller); }

    static const std::set<std::string>& ownBundleIDs();

    const std::vector<CleanerCore::InstalledApp>& apps() const { return installed; }
    std::vector<CleanerCore::InstalledApp> visibleApps() const;
    const CleanerCore::InstalledApp* selectedApp() const;
    // The bundle first, then its leftovers largest first, with their sizes and default ticks.
    std::vector<CleanerCore::CleanupItem> files(const CleanerCore::InstalledApp& app) const;
    std::int64_t totalSize(const CleanerCore::InstalledApp& app) const;
    std::optional<CleanerCore::UninstallBlocker> blockerOf(const CleanerCore::InstalledApp& app) const;
    std::optional<CleanerCore::UninstallBlocker> selectedBlocker() const;
    std::optional<CleanerCore::URL> iconOf(const CleanerCore::InstalledApp& app) const;

    QString search() const { return searchText; }
    void setSearch(const QString& text);
    Sort sort() const { return order; }
    void setSort(Sort sort);
    QString sortRaw() const;
    void setSortRaw(const QString& raw);
    static QStringList sorts();

    void selectApp(const std::optional<CleanerCore::URL>& url);
    Q_INVOKABLE void selectAppPath(const QString& path);
    Q_INVOKABLE void moveSelection(int delta);
    Q_INVOKABLE void refreshRunning();
    // Asks for confirmation unless the app is blocked (tested afresh) or nothing is ticked.
    Q_INVOKABLE void askToUninstall();
    // SIGTERM to the selected running app, then up to ten looks 0.3 s apart; never forced.
    Q_INVOKABLE void quitSelectedApp();
    QFuture<void> uninstall(CleanerCore::RemovalMode mode) { return clean(mode); }

    InstalledAppList* appList() const { return appRows; }
    CleanupItemList* fileList() const { return fileRows; }
    QString selectedAppPath() const;
    bool hasSelectedApp() const { return selectedApp() != nullptr; }
    QString selectedName() const;
    QString selectedDetail() const;
    QString selectedIcon() const;
    qint64 selectedTotal() const;
    QString lastUsedText() const;
    QString blockerRaw() const;
    QString blockerMessage() const;
    QString blockerButton() const;
    bool quitting() const { return quitLooks > 0; }
    QString confirmNote() const;
    QString selectedText() const;
    qint64 foundBytes() const override;
    QString foundSpoken() const override;
    QString successBody() const override;
    QString confirmQuestion() const override;

signals:
    void searchChanged();
    void sortChanged();
    void selectedAppChanged();
    void blockerChanged();
    void quittingChanged();
    void visibleAppsChanged();

protected:
    ScanPlan scanPlan() override;
    std::vector<CleanupCategory> categories() const override;
    void dropRemoved(const std::unordered_set<CleanerCore::URL>& removed) override;
    bool hasResults() const override { return !installed.empty(); }
    bool readyToRemove() override;
    RemovalJob removalJob(std::vector<CleanerCore::CleanupItem> items, CleanerCore::RemovalMode mode) const override;
    std::vector<CleanerCore::CleanupItem> removedWith(const CleanerCore::CleanupItem& item) const override;

private:
    void setRunning(std::set<std::string> ids);
    void resetSelection();
    void selectedChanged();
    void quitLook();

    AppSource appSource;
    RunningSource runningSource;
    QuitRequest quitRequest;
    FlatpakUninstaller flatpakUninstaller;
    CleanerCore::URL homeFolder;

    std::vector<CleanerCore::InstalledApp> installed;
    std::unordered_map<CleanerCore::URL, std::vector<CleanerCore::AppLeftover>> leftovers;
    std::unordered_map<CleanerCore::URL, std::int64_t> sizes;
    std::unordered_map<CleanerCore::URL, CleanerCore::URL> icons;
    std::unordered_map<CleanerCore::URL, std::vector<CleanerCore::URL>> integration; // an AppImage's desktop files
    std::set<std::string> running;
    std::optional<CleanerCore::URL> selectedID;
    QString searchText;
    Sort order = Sort::size;
    int quitLooks = 0;
    bool lastRemovalUninstalledFlatpak = false;

    InstalledAppList* appRows;
    CleanupItemList* fileRows;
};
