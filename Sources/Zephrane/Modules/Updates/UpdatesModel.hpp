#pragma once

#include "CleanerCore/Apps/InstalledApp.hpp"
#include "CleanerCore/Updates/AppUpdate.hpp"
#include "CleanerCore/Updates/AppUpdateInstaller.hpp"
#include "CleanerCore/Updates/IgnoredUpdateVersions.hpp"
#include "Modules/Shared/ModulePhaseModel.hpp"

#include <QDateTime>
#include <QFuture>
#include <QUrl>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

#include <exception>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <stop_token>
#include <string>
#include <vector>

class UpdateList;

// The updates channel: which installed apps have a newer version, what each row can do about it
// (install here, open the app, open its store, copy the package manager's command), the versions
// the user ignores, and installs run one app at a time. Nothing here removes files: the installer
// hands old copies to Cleaner itself.
class UpdatesModel : public ModulePhaseModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The updates model belongs to AppModel")
    Q_PROPERTY(UpdateList* rows READ rowList CONSTANT)
    Q_PROPERTY(QVariant pendingCount READ pendingCountValue NOTIFY statesChanged)
    Q_PROPERTY(int visibleCount READ visibleCount NOTIFY resultsChanged)
    Q_PROPERTY(int ignoredCount READ ignoredCount NOTIFY resultsChanged)
    Q_PROPERTY(int selectedCount READ selectedCount NOTIFY statesChanged)
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY statesChanged)
    Q_PROPERTY(bool isStopping READ isStopping NOTIFY statesChanged)
    Q_PROPERTY(bool installConfirming READ installConfirming NOTIFY statesChanged)
    Q_PROPERTY(QString checkedText READ checkedText NOTIFY checkedChanged)
    Q_PROPERTY(QString installAllText READ installAllText NOTIFY statesChanged)

public:
    using Stage = CleanerCore::AppUpdateInstaller::Stage;
    using Source = CleanerCore::AppUpdateSource;

    struct RowState {
        enum class Kind { idle, working, failed, installed, needsQuit };
        Kind kind = Kind::idle;
        Stage stage = Stage::downloading; // while working
        QString failure;                  // when failed, already in words
        bool operator==(const RowState&) const = default;
    };

    // What the model reaches outside itself; tests give canned ones. `find` and `install` run on
    // worker threads; `install` throws what the installer throws (OperationCancelled once `stop` is
    // requested before the swap) and reports stages from its thread.
    struct Engine {
        std::function<std::vector<CleanerCore::InstalledApp>()> apps;
        std::function<std::vector<CleanerCore::AppUpdate>(
            Source, const std::vector<CleanerCore::InstalledApp>&, std::stop_token)>
            find;
        std::function<void(const CleanerCore::AppUpdate&, const std::function<void(Stage)>&, std::stop_token)>
            install;
        std::function<bool(const std::string& bundleID)> isRunning;
        std::function<void(const QUrl&)> openURL;
        std::function<void(const QString&)> copyText;
        std::function<QDateTime()> now;

        // The finder over the network and libflatpak, the installer with its tools, the desktop.
        static Engine system();
    };

    explicit UpdatesModel(Preferences& preferences, QObject* parent = nullptr);
    UpdatesModel(Preferences& preferences, Engine engine, QObject* parent = nullptr);
    ~UpdatesModel() override;

    const std::vector<CleanerCore::AppUpdate>& updates() const { return found; }
    std::vector<CleanerCore::AppUpdate> visibleUpdates() const { return ignored.visible(found); }
    const CleanerCore::AppUpdate* update(const QString& id) const;
    // Absent until the first scan has finished; then the visible updates not yet installed.
    std::optional<int> pendingCount() const;
    int count(Source source) const;
    int visibleCount() const { return static_cast<int>(visibleUpdates().size()); }
    int ignoredCount() const { return static_cast<int>(ignored.hiddenCount(found)); }

    RowState state(const CleanerCore::AppUpdate& update) const;
    bool isSelectable(const CleanerCore::AppUpdate& update) const;
    bool isSelected(const CleanerCore::AppUpdate& update) const { return chosen.contains(update.id()); }
    void setSelected(const CleanerCore::AppUpdate& update, bool on);
    int selectedCount() const;
    bool isBusy() const { return installing; }
    bool isStopping() const { return installing && batchStop.stop_requested(); }
    std::optional<QDateTime> lastChecked() const { return checked; }
    const CleanerCore::IgnoredUpdateVersions& ignoredVersions() const { return ignored; }

    void perform(const CleanerCore::AppUpdate& update);
    // One after the other, in list order; the future ends after the last.
    QFuture<void> install(std::vector<CleanerCore::AppUpdate> list);
    void ignore(const CleanerCore::AppUpdate& update);

    // The row's words: what a failure says, by the installer's kinds.
    static QString describe(const std::exception_ptr& error);

    Q_INVOKABLE void perform(const QString& id);
    Q_INVOKABLE void toggleSelected(const QString& id);
    Q_INVOKABLE void ignore(const QString& id);
    Q_INVOKABLE void restoreIgnored();
    // The batch waits for the confirmation.
    Q_INVOKABLE void requestInstallSelected();
    Q_INVOKABLE void confirmInstall();
    Q_INVOKABLE void cancelInstall();
    // The app under way is abandoned if its swap has not begun (a half-done swap is worse than a
    // late stop); the rest of the batch is not begun.
    Q_INVOKABLE void stopInstalling();
    Q_INVOKABLE void openNotes(const QString& id);

    UpdateList* rowList() const { return rowModel; }
    QVariant pendingCountValue() const;
    int selectedCountValue() const { return selectedCount(); }
    bool installConfirming() const { return !pendingBatch.empty(); }
    QString checkedText() const;
    QString installAllText() const;

signals:
    void statesChanged();
    void checkedChanged();

protected:
    ScanPlan scanPlan() override;
    std::vector<CleanupCategory> categories() const override { return {}; }
    void dropRemoved(const std::unordered_set<CleanerCore::URL>&) override {}
    bool hasResults() const override { return !found.empty(); }
    QString foundSpoken() const override;

private:
    void setState(const QString& id, RowState state);
    void storeIgnored();

    Engine engine;
    std::vector<CleanerCore::AppUpdate> found;
    std::map<QString, RowState> rowStates;
    std::set<std::string> chosen;
    CleanerCore::IgnoredUpdateVersions ignored;
    std::optional<QDateTime> checked;
    std::vector<CleanerCore::AppUpdate> pendingBatch;
    bool installing = false;
    std::stop_source batchStop;
    QFuture<void> worker; // the batch in flight, waited for when the model goes
    Preferences& settings;
    UpdateList* rowModel;
};
