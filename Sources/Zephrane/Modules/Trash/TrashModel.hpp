#pragma once

#include "CleanerCore/Trash/TrashBin.hpp"
#include "CleanerCore/Trash/TrashEntry.hpp"
#include "Modules/Shared/ModulePhaseModel.hpp"
#include "Modules/Trash/VolumeTrash.hpp"

#include <QFuture>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class QFileSystemWatcher;
class QTimer;

// The trash channel: reads the home trash and every other volume's, and empties them all at once,
// for good. There is no selection: the one action takes everything. A read that is refused is "no
// access", a state of its own that hides every bin. The bins' files/ folders are watched, so what
// the file manager puts in or takes out shows while the program runs.
class TrashModel : public ModulePhaseModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The trash model belongs to AppModel")
    Q_PROPERTY(QString access READ accessRaw NOTIFY accessChanged)
    Q_PROPERTY(bool isReading READ isReading NOTIFY isReadingChanged)
    Q_PROPERTY(QVariantList rows READ rowValues NOTIFY resultsChanged)
    Q_PROPERTY(int restCount READ restCount NOTIFY resultsChanged)
    Q_PROPERTY(QString restText READ restText NOTIFY resultsChanged)
    Q_PROPERTY(QVariantList otherVolumes READ otherVolumeValues NOTIFY resultsChanged)
    Q_PROPERTY(QString startupName READ startupName NOTIFY resultsChanged)
    Q_PROPERTY(VolumeTrash startup READ startup NOTIFY resultsChanged)
    Q_PROPERTY(QString itemsText READ itemsText NOTIFY resultsChanged)
    Q_PROPERTY(QString confirmMessage READ confirmMessage NOTIFY resultsChanged)

public:
    enum class Access { unknown, granted, denied };
    using OtherBins = std::function<std::vector<CleanerCore::TrashBin>()>;
    // The list shows this many items; a last row counts the rest.
    static constexpr int listedRows = 100;

    explicit TrashModel(Preferences& preferences, QObject* parent = nullptr);

    // The trash folders of the mounted volumes other than the home trash.
    static std::vector<CleanerCore::TrashBin> mountedBins();

    // The home trash and where the other volumes' bins come from (the mount table, by default).
    void setBins(CleanerCore::TrashBin home, OtherBins others);
    const CleanerCore::TrashBin& homeBin() const { return bin; }

    Access access() const { return accessState; }
    bool isReading() const { return readingNow; }
    // The home trash's items, larger first.
    const std::vector<CleanerCore::TrashEntry>& entries() const { return homeEntries; }
    const std::vector<VolumeTrash>& volumes() const { return others; }
    // What the trash holds, for other channels: only while it is known and shown.
    std::optional<qint64> reading() const;

    // Reads every bin, unless a read or an emptying runs. With progress the channel shows the scan
    // screen; without, the results change in place. `announces` speaks the outcome of the read.
    // The future ends when the read is taken in (at once when refused).
    QFuture<void> refresh(bool showsProgress, bool announces = false);
    // The screen appearing: a first read with progress, later ones in place, each spoken.
    Q_INVOKABLE void refreshOnAppearing();
    Q_INVOKABLE void rescan() { refresh(true); }
    // The program coming back to the front: a drive may have come or gone meanwhile.
    Q_INVOKABLE void refreshInPlace() { refresh(false); }
    // Empties every bin for good, then reads them again in place. Only from the results.
    QFuture<void> emptyTrash();
    Q_INVOKABLE void startEmptying() { emptyTrash(); }

    QString accessRaw() const;
    QVariantList rowValues() const;
    int restCount() const;
    QString restText() const;
    QVariantList otherVolumeValues() const;
    QString startupName() const { return startupVolume; }
    VolumeTrash startup() const;
    QString itemsText() const;
    QString confirmMessage() const;
    // The words spoken after a read that announces.
    QString announcement() const;

signals:
    void accessChanged();
    void isReadingChanged();

protected:
    ScanPlan scanPlan() override;
    std::vector<CleanupCategory> categories() const override;
    void dropRemoved(const std::unordered_set<CleanerCore::URL>& removed) override;
    std::optional<CleanDestination> fixedDestination() const override { return CleanDestination::deleteForGood; }
    std::vector<CleanerCore::CleanupItem> removedWith(const CleanerCore::CleanupItem& item) const override;
    RemovalJob removalJob(std::vector<CleanerCore::CleanupItem> items, CleanerCore::RemovalMode mode) const override;

private:
    // One read of every bin, made on a worker thread.
    struct Read {
        std::optional<std::vector<CleanerCore::TrashEntry>> home; // nothing: no access
        std::string startupName; // the home trash's volume
        std::vector<CleanerCore::TrashBin> otherBins;               // all of them, to watch
        std::vector<std::vector<CleanerCore::TrashEntry>> contents; // of each other bin
        std::vector<std::string> names;                             // of each other bin's volume
    };
    static Read readBins(const CleanerCore::TrashBin& home, const OtherBins& others);
    void take(Read read);
    void finishReading(bool announces);
    void watchBins();
    void changedOnDisk();
    void setReading(bool on);

    CleanerCore::TrashBin bin;
    OtherBins otherBins;
    Access accessState = Access::unknown;
    bool readingNow = false;
    bool changeMissed = false; // the disk changed while a read ran that may not have seen it
    QString startupVolume;
    std::vector<CleanerCore::TrashEntry> homeEntries;
    // The other bins that hold something, each with the summary the bins panel shows.
    std::vector<std::pair<CleanerCore::TrashBin, std::vector<CleanerCore::TrashEntry>>> otherContents;
    std::vector<VolumeTrash> others;
    std::vector<CleanerCore::TrashBin> allOtherBins; // those that hold nothing too, to watch
    QFileSystemWatcher* watcher;
    QTimer* settleTimer;
};
