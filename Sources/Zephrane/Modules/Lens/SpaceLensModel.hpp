#pragma once

#include "CleanerCore/DiskTree/DiskNode.hpp"
#include "CleanerCore/DiskTree/SunburstSegment.hpp"
#include "CleanerCore/Files/URL.hpp"
#include "Modules/Shared/ModulePhaseModel.hpp"

#include <QLocale>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <optional>
#include <string>
#include <vector>

class LensRowsModel;

// The disk map: one scanned folder as a tree, the folder in focus and the way down to it, the
// arcs around it, the item under the pointer or the keyboard cursor, and the marks that a removal
// takes away. Marks are the shared selection; a mark on a folder covers all that is inside it.
class SpaceLensModel : public ModulePhaseModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The space lens belongs to the application model")
    Q_PROPERTY(bool hasTree READ hasTree NOTIFY treeChanged)
    Q_PROPERTY(QStringList pathNames READ pathNames NOTIFY treeChanged)
    Q_PROPERTY(bool canGoUp READ canGoUp NOTIFY treeChanged)
    Q_PROPERTY(QString focusName READ focusName NOTIFY treeChanged)
    Q_PROPERTY(QString scanRootPath READ scanRootPath NOTIFY scanRootChanged)
    Q_PROPERTY(LensRowsModel* rows READ rows CONSTANT)
    Q_PROPERTY(int highlightedRowIndex READ highlightedRowIndex NOTIFY highlightChanged)
    Q_PROPERTY(QString highlightedPath READ highlightedPath NOTIFY highlightChanged)
    Q_PROPERTY(QString centreTitle READ centreTitle NOTIFY highlightChanged)
    Q_PROPERTY(qint64 centreBytes READ centreBytes NOTIFY highlightChanged)
    Q_PROPERTY(QString centreLine READ centreLine NOTIFY highlightChanged)
    Q_PROPERTY(int markedCount READ markedCount NOTIFY selectionChanged)
    Q_PROPERTY(qint64 markedBytes READ markedBytes NOTIFY selectionChanged)

public:
    explicit SpaceLensModel(QObject* parent = nullptr);

    using Node = CleanerCore::DiskNode::Pointer;
    using URL = CleanerCore::URL;

    const Node& root() const { return tree; }
    const std::vector<Node>& path() const { return navigation; }
    Node focusNode() const { return navigation.empty() ? nullptr : navigation.back(); }
    const std::vector<CleanerCore::SunburstSegment>& segments() const { return arcs; }
    const URL& scanRoot() const { return rootFolder; }
    void setScanRoot(URL folder);
    const std::optional<URL>& hovered() const { return hoveredURL; }
    const std::optional<URL>& cursor() const { return cursorURL; }
    void setHovered(std::optional<URL> url);
    void setCursor(std::optional<URL> url);

    std::vector<Node> rowNodes() const;
    std::optional<URL> highlighted() const { return hoveredURL ? hoveredURL : cursorURL; }
    Node highlightedNode() const;
    std::optional<URL> highlightedRow() const;
    bool isMarked(const URL& url) const;
    bool hasMarkedInside(const URL& url) const;
    std::vector<Node> markedNodes() const;
    // The marks as standardized paths, for painting.
    std::vector<std::string> markedPaths() const;

    // Navigation. Each change of focus is announced to assistive technology.
    Q_INVOKABLE void goUp();
    Q_INVOKABLE void goToLevel(int level);
    void open(const URL& url);
    void moveCursor(int delta);
    void toggleMark(const URL& url);

    // The folder dialog lives in the view: this asks for it unless a scan or a removal runs.
    Q_INVOKABLE void chooseFolderAndScan();
    Q_INVOKABLE void scanFolder(const QUrl& folder);

    // For the views, by path.
    Q_INVOKABLE void openPath(const QString& path) { open(URL::file(path.toStdString())); }
    Q_INVOKABLE void toggleMarkPath(const QString& path) { toggleMark(URL::file(path.toStdString())); }
    Q_INVOKABLE void setCursorPath(const QString& path);
    Q_INVOKABLE void setHoveredPath(const QString& path);
    Q_INVOKABLE void moveCursorBy(int delta) { moveCursor(delta); }
    Q_INVOKABLE void openHighlighted();
    Q_INVOKABLE void toggleHighlighted();
    // The list's keys: arrows move the cursor, go up and open (sides swapped right to left, and
    // up/down with a modifier go up and open), Return opens, Space marks, Delete asks to remove.
    // Answers whether the key was used.
    Q_INVOKABLE bool handleKey(int key, int modifiers, bool rightToLeft);
    // A byte count as text for the views.
    Q_INVOKABLE QVariantMap bytesParts(qint64 count) const;
    // The interface's locale, for the digits.
    Q_INVOKABLE QString localeName() const;
    // Asks for the confirmation of a removal when something is marked.
    Q_INVOKABLE void requestRemoval() { setConfirming(true); }

    // "Home" for the user's home folder, "/" for the root, else the last path component.
    static QString displayName(const URL& url);
    // The share of `size` in `whole` as a whole percent; a tiny share reads "<1 %", never 0.
    static QString share(std::int64_t size, std::int64_t whole, const QLocale& locale);

    bool hasTree() const { return bool(tree); }
    QStringList pathNames() const;
    bool canGoUp() const { return navigation.size() >= 2; }
    QString focusName() const;
    QString scanRootPath() const { return QString::fromStdString(rootFolder.path()); }
    LensRowsModel* rows() const { return rowsModel; }
    int highlightedRowIndex() const;
    QString highlightedPath() const;
    QString centreTitle() const;
    qint64 centreBytes() const;
    QString centreLine() const;
    int markedCount() const;
    qint64 markedBytes() const;

signals:
    void treeChanged();
    void highlightChanged();
    void scanRootChanged();
    void folderChoiceRequested(const QUrl& startFolder);

protected:
    std::vector<ScanUnit> scanUnits() override;
    void adoptResults(std::vector<std::any> payloads) override;
    std::vector<CleanupCategory> categories() const override;
    void dropRemoved(const std::unordered_set<URL>& removed) override;
    bool hasResults() const override { return tree && !tree->children().empty(); }

private:
    void setPath(std::vector<Node> nodes);
    void setHighlight(std::optional<URL> hover, std::optional<URL> cursor);
    void announceFocus() const;
    Node nodeAt(const URL& url) const;

    Node tree;
    std::vector<Node> navigation;
    std::vector<CleanerCore::SunburstSegment> arcs;
    URL rootFolder;
    std::optional<URL> hoveredURL;
    std::optional<URL> cursorURL;
    LensRowsModel* rowsModel;
};
