#pragma once

#include "CleanerCore/Files/URL.hpp"
#include "CleanerCore/Removal/CleanupItem.hpp"
#include "CleanerCore/Removal/RemovalMode.hpp"
#include "CleanerCore/Removal/RemovalReport.hpp"
#include "Modules/Shared/CleanDestination.hpp"
#include "Modules/Shared/CleanupCategory.hpp"
#include "Modules/Shared/CleanupOutcome.hpp"
#include "Modules/Shared/CleanupSelection.hpp"
#include "Modules/Shared/CleanupSummary.hpp"
#include "Modules/Shared/ModulePhase.hpp"
#include "Modules/Shared/ModulePhaseActions.hpp"
#include "Modules/Shared/PainelPhase.hpp"
#include "Modules/Shared/ScanProgress.hpp"
#include "Modules/Shared/ScanUnit.hpp"

#include <QFuture>
#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <memory>
#include <optional>
#include <unordered_set>
#include <vector>

class Preferences;
class ScanRunner;

// The life every scanning-and-removing channel shares: idle -> scanning -> ready -> cleaning ->
// done -> ready, the confirmation sheet, and the report of the last removal. Selection and scan
// scheduling are small types of their own (CleanupSelection, ScanRunner) that this composes.
//
// A channel derives from it and implements three hooks:
//   scanPlan()      the units of one scan and how their results are taken in (see ScanPlan);
//   categories()    the current results as categories of CleanupItems (summary, outcome lines,
//                   default selection, selected items all derive from it);
//   dropRemoved()   take removed URLs out of the results after a clean.
// and may override how it removes: fixedDestination() (the trash always empties for good),
// removedWith() (items that go with each item), removalJob() (a removal that is not Cleaner's).
// Call notifyResultsChanged() if the channel changes its results any other way.
class ModulePhaseModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("A channel model derives from ModulePhaseModel")
    Q_PROPERTY(QString phase READ phaseRaw NOTIFY phaseChanged)
    Q_PROPERTY(QString painelPhase READ painelPhaseRaw NOTIFY painelPhaseChanged)
    Q_PROPERTY(bool confirming READ confirming WRITE setConfirming NOTIFY confirmingChanged)
    Q_PROPERTY(bool hasScanned READ hasScanned NOTIFY hasScannedChanged)
    Q_PROPERTY(QString destination READ destinationRaw WRITE setDestinationRaw NOTIFY destinationChanged)
    Q_PROPERTY(QString destinationTitle READ destinationTitle NOTIFY destinationChanged)
    Q_PROPERTY(bool destinationFixed READ destinationFixed CONSTANT)
    Q_PROPERTY(ScanProgress progress READ progress NOTIFY progressChanged)
    Q_PROPERTY(CleanupSummary summary READ summary NOTIFY selectionChanged)
    Q_PROPERTY(CleanupOutcome outcome READ outcomeValue NOTIFY outcomeChanged)
    Q_PROPERTY(qint64 foundBytes READ foundBytes NOTIFY resultsChanged)
    Q_PROPERTY(QString foundSpoken READ foundSpoken NOTIFY resultsChanged)
    Q_PROPERTY(int itemCount READ itemCount NOTIFY resultsChanged)
    Q_PROPERTY(CleanupSelection* selection READ selection CONSTANT)
    Q_PROPERTY(ModulePhaseActions* actions READ actions CONSTANT)
    Q_PROPERTY(QString successBody READ successBody NOTIFY outcomeChanged)
    Q_PROPERTY(QString confirmQuestion READ confirmQuestion NOTIFY selectionChanged)

public:
    ModulePhaseModel(Preferences& preferences, QObject* parent = nullptr);
    ~ModulePhaseModel() override;

    ModulePhase phase() const { return current; }
    PainelPhase painelPhase() const { return shown; }
    const ScanProgress& progress() const;
    const std::optional<CleanupOutcome>& outcome() const { return lastOutcome; }
    const std::optional<CleanerCore::RemovalReport>& lastReport() const { return report; }
    bool hasScanned() const { return scanned; }
    bool isScanRunning() const;
    bool confirming() const { return confirmingFlag; }
    void setConfirming(bool on);
    // Where a confirmed removal goes: the channel's fixed way, else the stored choice.
    CleanDestination destination() const;
    void setDestination(CleanDestination destination);

    // Starts a scan unless one runs or a removal runs; the future finishes when the scan ends
    // (at once when refused).
    QFuture<void> scan();
    Q_INVOKABLE void startScan() { scan(); }
    // The automatic scan of a first visit: at most once, and only into an idle model never scanned.
    Q_INVOKABLE void scanOnFirstVisit();
    // Cancels the running scan; the unit under way runs to its end.
    Q_INVOKABLE void stop();
    // Removes the selected items; refused (finished future) with nothing selected or outside ready.
    QFuture<void> clean(CleanerCore::RemovalMode mode);
    // The confirmation sheet's key: closes the sheet and removes to the destination.
    Q_INVOKABLE void confirm();
    // The success panel's key: back to what is left of the results.
    Q_INVOKABLE void done();

    CleanupSummary summary() const;
    std::vector<CleanerCore::CleanupItem> allItems() const;
    std::vector<CleanerCore::CleanupItem> selectedItems() const;
    CleanupSelection* selection() const { return selected; }
    int itemCount() const;
    virtual qint64 foundBytes() const;
    // The found size in words for the results announcement; a channel whose finding reads better
    // in its own words ("3 apps") overrides it.
    virtual QString foundSpoken() const;
    // The success panel's sentence when the channel's last removal deserves its own words (an app
    // uninstalled by its package manager did not go to the trash); empty for the shared one.
    virtual QString successBody() const { return {}; }
    // Likewise the confirmation's question, when the selection is not simply moved or deleted.
    virtual QString confirmQuestion() const { return {}; }

    ModulePhaseActions* actions() const { return phaseActions; }

    // Where removals take place from; tests point it at a temporary tree.
    void setRemovalHome(CleanerCore::URL home) { removalHome = std::move(home); }

    QString phaseRaw() const { return ModulePhases::rawValue(current); }
    QString painelPhaseRaw() const { return PainelPhases::rawValue(shown); }
    QString destinationRaw() const { return CleanDestinations::rawValue(destination()); }
    void setDestinationRaw(const QString& raw);
    QString destinationTitle() const;
    bool destinationFixed() const { return fixedDestination().has_value(); }
    CleanupOutcome outcomeValue() const { return lastOutcome.value_or(CleanupOutcome{}); }

signals:
    void phaseChanged();
    void painelPhaseChanged();
    void confirmingChanged();
    void hasScannedChanged();
    void destinationChanged();
    void progressChanged();
    void selectionChanged();
    void outcomeChanged();
    void resultsChanged();
    // A unit finished during a scan: its tile title (for announcements).
    void stepFinished(const QString& title);

protected:
    using RemovalJob = std::function<CleanerCore::RemovalReport()>;

    virtual ScanPlan scanPlan() = 0;
    virtual std::vector<CleanupCategory> categories() const = 0;
    virtual void dropRemoved(const std::unordered_set<CleanerCore::URL>& removed) = 0;

    // A channel whose removals always go one way, whatever the stored choice, says which.
    virtual std::optional<CleanDestination> fixedDestination() const { return std::nullopt; }
    // Items removed after `item`, and only when it went (an index entry that describes it, say).
    virtual std::vector<CleanerCore::CleanupItem> removedWith(const CleanerCore::CleanupItem&) const {
        return {};
    }
    // What a removal of `items` does, run on a worker thread. The default asks Cleaner, in `mode`,
    // for the items and then for what removedWith() names for each item that went; their failures
    // join the report. A channel whose things are not removed as files (an application uninstalled
    // through its package manager) returns its own job; it must still leave files to Cleaner.
    virtual RemovalJob removalJob(std::vector<CleanerCore::CleanupItem> items, CleanerCore::RemovalMode mode) const;

    // Asked on the interface thread as a removal starts; a channel that must look again at the
    // last moment (is the app still running?) refuses here, and the removal does not begin.
    virtual bool readyToRemove() { return true; }

    void notifyResultsChanged();
    // Whether `ready` shows results rather than the empty screen. A channel whose results are more
    // than its removable items (a map with nothing marked yet, say) answers for itself.
    virtual bool hasResults() const { return itemCount() > 0; }
    const CleanerCore::URL& removalFolder() const { return removalHome; }

private:
    void finishScan(bool stopped);
    void finishClean(const CleanerCore::RemovalReport& removal, const std::vector<CleanupCategory>& before,
                     std::chrono::steady_clock::time_point started);
    void setPhase(ModulePhase phase);
    void refreshPainelPhase();

    Preferences& preferences;
    ModulePhase current = ModulePhase::idle;
    PainelPhase shown = PainelPhase::idle;
    std::optional<CleanupOutcome> lastOutcome;
    std::optional<CleanerCore::RemovalReport> report;
    bool scanned = false;
    bool automaticScanMade = false;
    bool confirmingFlag = false;
    CleanerCore::URL removalHome;
    // The scan in flight: how its results are taken in, the phase it started from, its end.
    struct PendingScan;
    std::unique_ptr<PendingScan> pending;
    ScanRunner* runner;
    CleanupSelection* selected;
    ModulePhaseActions* phaseActions;
};
