#pragma once

#include "CleanerCore/DiskTree/DiskNode.hpp"
#include "CleanerCore/Files/URL.hpp"
#include "Modules/Lens/LensNavigation.hpp"
#include "Modules/Shared/ModulePhaseModel.hpp"

#include <QUrl>
#include <QtQml/qqmlregistration.h>

class LensRowsModel;

// The disk map channel: scans one folder into a tree, looks through it with LensNavigation, and
// removes what is marked. Marks are the shared selection (see LensMarks).
class SpaceLensModel : public ModulePhaseModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The space lens belongs to the application model")
    Q_PROPERTY(bool hasTree READ hasTree NOTIFY treeChanged)
    Q_PROPERTY(QString scanRootPath READ scanRootPath NOTIFY scanRootChanged)
    Q_PROPERTY(LensNavigation* navigation READ navigation CONSTANT)
    Q_PROPERTY(LensRowsModel* rows READ rows CONSTANT)
    Q_PROPERTY(int markedCount READ markedCount NOTIFY selectionChanged)
    Q_PROPERTY(qint64 markedBytes READ markedBytes NOTIFY selectionChanged)

public:
    using Node = CleanerCore::DiskNode::Pointer;
    using URL = CleanerCore::URL;

    explicit SpaceLensModel(Preferences& preferences, QObject* parent = nullptr);

    const URL& scanRoot() const { return rootFolder; }
    void setScanRoot(URL folder);
    LensNavigation* navigation() const { return nav; }
    LensRowsModel* rows() const { return rowsModel; }

    bool isMarked(const URL& url) const;
    std::vector<Node> markedNodes() const;
    void toggleMark(const URL& url);
    Q_INVOKABLE void toggleMarkPath(const QString& path) { toggleMark(URL::file(path.toStdString())); }
    Q_INVOKABLE void toggleHighlighted();
    // Asks for the confirmation of a removal when something is marked.
    Q_INVOKABLE void requestRemoval() { setConfirming(true); }
    // The list's keys: arrows move the cursor, go up and open (sides swapped right to left, and
    // up/down with a modifier go up and open), Return opens, Space marks, Delete asks to remove.
    // Answers whether the key was used.
    Q_INVOKABLE bool handleKey(int key, int modifiers, bool rightToLeft);

    // The folder dialog lives in the view: this asks for it unless a scan or a removal runs.
    Q_INVOKABLE void chooseFolderAndScan();
    Q_INVOKABLE void scanFolder(const QUrl& folder);

    bool hasTree() const { return bool(nav->root()); }
    QString scanRootPath() const { return QString::fromStdString(rootFolder.path()); }
    int markedCount() const;
    qint64 markedBytes() const;
    QString foundSpoken() const override;

signals:
    void treeChanged();
    void scanRootChanged();
    void folderChoiceRequested(const QUrl& startFolder);

protected:
    ScanPlan scanPlan() override;
    std::vector<CleanupCategory> categories() const override;
    void dropRemoved(const std::unordered_set<URL>& removed) override;
    bool hasResults() const override { return nav->root() && !nav->root()->children().empty(); }

private:
    URL rootFolder;
    LensNavigation* nav;
    LensRowsModel* rowsModel;
};
