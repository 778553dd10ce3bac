#pragma once

#include "CleanerCore/LargeFiles/FileKind.hpp"
#include "CleanerCore/LargeFiles/LargeFile.hpp"
#include "CleanerCore/LargeFiles/LargeFileAge.hpp"
#include "CleanerCore/LargeFiles/LargeFileFilter.hpp"
#include "CleanerCore/LargeFiles/LargeFileSort.hpp"
#include "Modules/Large/LargeFilterOption.hpp"
#include "Modules/Shared/ModulePhaseModel.hpp"

#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <optional>
#include <vector>

class LargeFileList;

// The large-files channel: one walk of the home with a tile per folder right below it (and one for
// the rest), the files it found, the filter bar and the order of the list. Filters and order work
// on the files in hand; only a new scan walks again, and only a new scan clears the selection.
class LargeFilesModel : public ModulePhaseModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The large-files model belongs to AppModel")
    Q_PROPERTY(LargeFileList* list READ list CONSTANT)
    Q_PROPERTY(QString minimumSize READ minimumSizeRaw WRITE setMinimumSizeRaw NOTIFY filterChanged)
    Q_PROPERTY(QString age READ ageRaw WRITE setAgeRaw NOTIFY filterChanged)
    Q_PROPERTY(QString kind READ kindRaw WRITE setKindRaw NOTIFY filterChanged)
    Q_PROPERTY(QString sort READ sortRaw WRITE setSortRaw NOTIFY sortChanged)
    Q_PROPERTY(QVariantList sizeOptions READ sizeOptions CONSTANT)
    Q_PROPERTY(QVariantList ageOptions READ ageOptions CONSTANT)
    Q_PROPERTY(QVariantList kindOptions READ kindOptions CONSTANT)
    Q_PROPERTY(int visibleCount READ visibleCount NOTIFY visibleChanged)
    Q_PROPERTY(bool filteredEmpty READ filteredEmpty NOTIFY visibleChanged)
    Q_PROPERTY(bool selectAllOn READ selectAllOn NOTIFY selectAllChanged)
    Q_PROPERTY(bool selectAllMixed READ selectAllMixed NOTIFY selectAllChanged)
    Q_PROPERTY(QString selectAllState READ selectAllState NOTIFY selectAllChanged)
    Q_PROPERTY(QString foundDetail READ foundDetail NOTIFY resultsChanged)
    Q_PROPERTY(QString filesText READ filesText NOTIFY visibleChanged)
    Q_PROPERTY(QString selectedText READ selectedText NOTIFY selectionChanged)
    Q_PROPERTY(QString selectedDetail READ selectedDetail NOTIFY selectionChanged)
    Q_PROPERTY(QString removeText READ removeText NOTIFY selectionChanged)

public:
    using LargeFile = CleanerCore::LargeFile;

    explicit LargeFilesModel(Preferences& preferences, QObject* parent = nullptr);
    ~LargeFilesModel() override;

    // The home the scan walks and removals act in (the user's, unless a test says otherwise).
    void setHome(CleanerCore::URL home);
    const CleanerCore::URL& home() const { return homeFolder; }

    // Everything the last scan found (less what was removed since), in the order it was found.
    const std::vector<LargeFile>& files() const { return found; }
    // What the list shows: the files that pass the filter, in the chosen order.
    const std::vector<LargeFile>& visibleFiles() const { return shown; }
    CleanerCore::LargeFileFilter filter() const;

    std::int64_t minimumSize() const { return minimum; }
    void setMinimumSize(std::int64_t bytes);
    CleanerCore::LargeFileAge age() const { return ageChoice; }
    void setAge(CleanerCore::LargeFileAge age);
    std::optional<CleanerCore::FileKind> kind() const { return kindChoice; }
    void setKind(std::optional<CleanerCore::FileKind> kind);
    CleanerCore::LargeFileSort sort() const { return sortChoice; }
    void setSort(CleanerCore::LargeFileSort sort);

    // The select-all box over the visible files only: on when all are selected, mixed when some.
    CleanupSelection::State selectionState() const { return shownState; }
    // All visible off when all are on; otherwise the visible ones join the selection.
    Q_INVOKABLE void toggleSelectAll();
    // A visible row by its place in the list: names that are not UTF-8 survive no trip through text.
    Q_INVOKABLE void toggleRow(int row);
    // Shows the row's file in the desktop's file manager.
    Q_INVOKABLE void revealRow(int row) const;

    // The moment filters count "last used" back from; tests fix it.
    void setClock(std::function<std::chrono::system_clock::time_point()> now);
    std::chrono::system_clock::time_point now() const { return clock(); }

    LargeFileList* list() const { return rows; }
    QString minimumSizeRaw() const { return QString::number(minimum); }
    void setMinimumSizeRaw(const QString& raw);
    QString ageRaw() const;
    void setAgeRaw(const QString& raw);
    QString kindRaw() const; // "all" or a kind's raw value
    void setKindRaw(const QString& raw);
    QString sortRaw() const;
    void setSortRaw(const QString& raw);
    QVariantList sizeOptions() const;
    QVariantList ageOptions() const;
    QVariantList kindOptions() const;
    int visibleCount() const { return static_cast<int>(shown.size()); }
    // Files were found, but the filter lets none through: not the same screen as finding none.
    bool filteredEmpty() const { return !found.empty() && shown.empty(); }
    bool selectAllOn() const { return selectionState().isOn; }
    bool selectAllMixed() const { return selectionState().isMixed; }
    QString selectAllState() const; // "on", "off", "mixed"
    QString foundDetail() const;
    QString filesText() const;
    QString selectedText() const;
    QString selectedDetail() const;
    QString removeText() const;

    // "3 files", "1 file".
    static QString fileCount(int files);

signals:
    void filterChanged();
    void sortChanged();
    void visibleChanged();
    void selectAllChanged();

protected:
    ScanPlan scanPlan() override;
    std::vector<CleanupCategory> categories() const override;
    void dropRemoved(const std::unordered_set<CleanerCore::URL>& removed) override;

private:
    void refreshVisible();
    void refreshSelectAll();
    void regroup();

    CleanerCore::URL homeFolder;
    std::vector<LargeFile> found;
    std::vector<LargeFile> shown;
    // Kept, not recomputed per question: the summary and the select-all box are asked often, and
    // a list of ten thousand files must not make each question cost a pass over all of them.
    std::vector<CleanupCategory> grouped;
    CleanupSelection::State shownState;
    std::int64_t minimum = 100000000;
    CleanerCore::LargeFileAge ageChoice = CleanerCore::LargeFileAge::any;
    std::optional<CleanerCore::FileKind> kindChoice;
    CleanerCore::LargeFileSort sortChoice = CleanerCore::LargeFileSort::size;
    std::function<std::chrono::system_clock::time_point()> clock;
    std::unique_ptr<icu::Calendar> calendar;
    LargeFileList* rows;
};
