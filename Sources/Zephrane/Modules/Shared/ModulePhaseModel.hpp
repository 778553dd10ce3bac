#pragma once

#include "CleanerCore/Files/URL.hpp"
#include "CleanerCore/Removal/CleanupItem.hpp"
#include "CleanerCore/Removal/RemovalMode.hpp"
#include "CleanerCore/Removal/RemovalReport.hpp"
#include "Modules/Shared/CleanDestination.hpp"
#include "Modules/Shared/CleanupCategory.hpp"
#include "Modules/Shared/CleanupOutcome.hpp"
#include "Modules/Shared/CleanupSummary.hpp"
#include "Modules/Shared/ModulePhase.hpp"
#include "Modules/Shared/ModulePhaseActions.hpp"
#include "Modules/Shared/PainelPhase.hpp"
#include "Modules/Shared/ScanProgress.hpp"
#include "Modules/Shared/ScanUnit.hpp"

#include <QFuture>
#include <QFutureWatcher>
#include <QObject>
#include <QTimer>
#include <QVariantList>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

#include <any>
#include <memory>
#include <optional>
#include <unordered_set>
#include <vector>

// The life every scanning-and-removing channel shares, written once.
//
// How a channel uses it: derive from ModulePhaseModel and implement four hooks.
//   scanUnits()      the units of work of one scan (called on the interface thread when it starts);
//                    each unit's work runs on the pool with a stop token and returns a ScanUnitResult
//                    whose payload carries the channel's partial results.
//   adoptResults()   a completed scan's payloads, in unit order: replace the channel's results.
//   categories()     the current results as categories of CleanupItems (summary, outcome lines,
//                    default selection, selected items all derive from it).
//   dropRemoved()    take removed URLs out of the results after a clean.
// Call notifyResultsChanged() if the channel changes its results any other way. The base keeps
// phase, progress, selection, the confirmation flag, outcome and the last report, runs scans and
// removals off the interface thread and changes state only on it; a channel's screen puts a
// ModulePhaseView over the model and gives it the channel's own results view.
class ModulePhaseModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("A channel model derives from ModulePhaseModel")
    Q_PROPERTY(QString phase READ phaseRaw NOTIFY phaseChanged)
    Q_PROPERTY(QString painelPhase READ painelPhaseRaw NOTIFY painelPhaseChanged)
    Q_PROPERTY(bool confirming READ confirming WRITE setConfirming NOTIFY confirmingChanged)
    Q_PROPERTY(bool hasScanned READ hasScanned NOTIFY hasScannedChanged)
    Q_PROPERTY(QString destination READ destinationRaw WRITE setDestinationRaw NOTIFY destinationChanged)
    Q_PROPERTY(QVariantMap progress READ progressMap NOTIFY progressChanged)
    Q_PROPERTY(QVariantMap summary READ summaryMap NOTIFY selectionChanged)
    Q_PROPERTY(QVariantMap outcome READ outcomeMap NOTIFY outcomeChanged)
    Q_PROPERTY(qint64 foundBytes READ foundBytes NOTIFY resultsChanged)
    Q_PROPERTY(QString foundSpoken READ foundSpokenText NOTIFY resultsChanged)
    Q_PROPERTY(int itemCount READ itemCount NOTIFY resultsChanged)
    Q_PROPERTY(int selectedCount READ selectedCount NOTIFY selectionChanged)
    Q_PROPERTY(QString destinationTitle READ destinationTitle NOTIFY destinationChanged)
    Q_PROPERTY(ModulePhaseActions* actions READ actions CONSTANT)

public:
    explicit ModulePhaseModel(QObject* parent = nullptr);
    ~ModulePhaseModel() override;

    ModulePhase phase() const { return current; }
    PainelPhase painelPhase() const { return shown; }
    const ScanProgress& progress() const { return scanProgress; }
    const std::optional<CleanupOutcome>& outcome() const { return lastOutcome; }
    const std::optional<CleanerCore::RemovalReport>& lastReport() const { return report; }
    bool hasScanned() const { return scanned; }
    bool isScanRunning() const { return bool(scanTask); }
    bool confirming() const { return confirmingFlag; }
    void setConfirming(bool on);
    CleanDestination destination() const { return chosenDestination; }
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
    // The confirmation sheet's key: closes the sheet and cleans to the chosen destination.
    Q_INVOKABLE void confirm();
    // The success panel's key: back to what is left of the results.
    Q_INVOKABLE void done();

    CleanupSummary summary() const;
    std::vector<CleanerCore::CleanupItem> allItems() const;
    std::vector<CleanerCore::CleanupItem> selectedItems() const;
    const std::unordered_set<CleanerCore::URL>& selection() const { return selected; }
    void setSelection(std::unordered_set<CleanerCore::URL> urls);
    Q_INVOKABLE bool isSelected(const QString& path) const;
    Q_INVOKABLE void setSelected(const QString& path, bool on);

    int itemCount() const;
    int selectedCount() const { return static_cast<int>(selected.size()); }
    virtual qint64 foundBytes() const;
    // A channel whose found size reads better in its own words (for instance "3 apps") says so here.
    virtual QString foundSpokenText() const { return {}; }

    ModulePhaseActions* actions() const { return phaseActions; }

    // Where removals take place from; tests point it at a temporary tree.
    void setRemovalHome(CleanerCore::URL home) { removalHome = std::move(home); }

    QString phaseRaw() const { return ModulePhases::rawValue(current); }
    QString painelPhaseRaw() const { return PainelPhases::rawValue(shown); }
    QString destinationRaw() const { return CleanDestinations::rawValue(chosenDestination); }
    void setDestinationRaw(const QString& raw);
    QString destinationTitle() const;
    QVariantMap progressMap() const;
    // Texts of the phase screens: the scan's running clock, and "3 items".
    Q_INVOKABLE QString elapsedText() const;
    Q_INVOKABLE QString countText(int count) const;
    QVariantMap summaryMap() const;
    QVariantMap outcomeMap() const;

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
    virtual std::vector<ScanUnit> scanUnits() = 0;
    virtual void adoptResults(std::vector<std::any> payloads) = 0;
    virtual std::vector<CleanupCategory> categories() const = 0;
    virtual void dropRemoved(const std::unordered_set<CleanerCore::URL>& removed) = 0;

    void notifyResultsChanged();
    // Whether `ready` shows results rather than the empty screen. A channel whose results are more
    // than its removable items (a map with nothing marked yet, say) answers for itself.
    virtual bool hasResults() const { return itemCount() > 0; }

private:
    struct ScanRun;
    // Runs `handler` with the work's result on this model's thread, unless the model is gone by
    // then. (A continuation bound to a destroyed context object aborts in Qt 6.4; a watcher owned by
    // the model simply dies with it.)
    template <class T, class Handler> void whenDone(QFuture<T> work, Handler handler);
    void runUnit(const std::shared_ptr<ScanRun>& run, std::size_t index);
    void finishScan(const std::shared_ptr<ScanRun>& run, bool cancelled);
    void finishClean(const CleanerCore::RemovalReport& removal, const std::vector<CleanupCategory>& before,
                     std::chrono::steady_clock::time_point started);
    void pollFeed();
    void setPhase(ModulePhase phase);
    void refreshPainelPhase();

    ModulePhase current = ModulePhase::idle;
    PainelPhase shown = PainelPhase::idle;
    ScanProgress scanProgress;
    std::optional<CleanupOutcome> lastOutcome;
    std::optional<CleanerCore::RemovalReport> report;
    std::unordered_set<CleanerCore::URL> selected;
    bool scanned = false;
    bool automaticScanMade = false;
    bool confirmingFlag = false;
    CleanDestination chosenDestination;
    CleanerCore::URL removalHome;
    std::shared_ptr<ScanRun> scanTask;
    QTimer feedTimer;
    ModulePhaseActions* phaseActions;
};

template <class T, class Handler> void ModulePhaseModel::whenDone(QFuture<T> work, Handler handler) {
    auto* watcher = new QFutureWatcher<T>(this);
    connect(watcher, &QFutureWatcherBase::finished, this, [watcher, handler = std::move(handler)]() mutable {
        watcher->deleteLater();
        handler(watcher->result());
    });
    watcher->setFuture(std::move(work));
}
