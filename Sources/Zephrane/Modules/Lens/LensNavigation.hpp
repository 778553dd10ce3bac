#pragma once

#include "CleanerCore/DiskTree/DiskNode.hpp"
#include "CleanerCore/DiskTree/SunburstSegment.hpp"
#include "CleanerCore/Files/URL.hpp"

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <optional>
#include <unordered_set>
#include <vector>

// Where the disk map looks: the scanned tree, the way down to the folder in focus, the arcs around
// it, and the item under the pointer (hover) or the keyboard cursor, with what the centre of the
// map and the breadcrumbs say about them. Each change of focus is announced.
class LensNavigation : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Navigation belongs to the space lens")
    Q_PROPERTY(QStringList pathNames READ pathNames NOTIFY pathChanged)
    Q_PROPERTY(bool canGoUp READ canGoUp NOTIFY pathChanged)
    Q_PROPERTY(QString focusName READ focusName NOTIFY pathChanged)
    Q_PROPERTY(int highlightedRowIndex READ highlightedRowIndex NOTIFY highlightChanged)
    Q_PROPERTY(QString highlightedPath READ highlightedPath NOTIFY highlightChanged)
    Q_PROPERTY(QString centreTitle READ centreTitle NOTIFY highlightChanged)
    Q_PROPERTY(qint64 centreBytes READ centreBytes NOTIFY highlightChanged)
    Q_PROPERTY(QString centreLine READ centreLine NOTIFY highlightChanged)

public:
    using Node = CleanerCore::DiskNode::Pointer;
    using URL = CleanerCore::URL;

    explicit LensNavigation(QObject* parent = nullptr) : QObject(parent) {}

    const Node& root() const { return tree; }
    const std::vector<Node>& path() const { return levels; }
    Node focusNode() const { return levels.empty() ? nullptr : levels.back(); }
    const std::vector<CleanerCore::SunburstSegment>& segments() const { return arcs; }
    // The children of the folder in focus, largest first: the rows beside the map.
    std::vector<Node> rowNodes() const;

    // A new tree, seen from its root, with nothing highlighted.
    void show(Node root);
    // The tree after a removal: the way down is kept as far as its folders remain.
    void keepAfterRemoval(Node root);

    const std::optional<URL>& hovered() const { return hoveredURL; }
    const std::optional<URL>& cursor() const { return cursorURL; }
    void setHovered(std::optional<URL> url);
    void setCursor(std::optional<URL> url);
    std::optional<URL> highlighted() const { return hoveredURL ? hoveredURL : cursorURL; }
    Node highlightedNode() const;
    // The row that holds the highlighted item (the item itself when it is a row).
    std::optional<URL> highlightedRow() const;
    // The node at `url` below the focus, else anywhere in the tree.
    Node nodeAt(const URL& url) const;

    Q_INVOKABLE void goUp();
    Q_INVOKABLE void goToLevel(int level);
    void open(const URL& url);
    void moveCursor(int delta);
    Q_INVOKABLE void openHighlighted();

    // For the views, by path.
    Q_INVOKABLE void openPath(const QString& path) { open(URL::file(path.toStdString())); }
    Q_INVOKABLE void setCursorPath(const QString& path);
    Q_INVOKABLE void setHoveredPath(const QString& path);
    // The pointer left `path`: its hover ends, unless the pointer already hovers another item.
    Q_INVOKABLE void leave(const QString& path);

    QStringList pathNames() const;
    bool canGoUp() const { return levels.size() >= 2; }
    QString focusName() const;
    int highlightedRowIndex() const;
    QString highlightedPath() const;
    QString centreTitle() const;
    qint64 centreBytes() const;
    QString centreLine() const;

signals:
    void pathChanged();
    void highlightChanged();

private:
    void setPath(std::vector<Node> nodes);
    void setHighlight(std::optional<URL> hover, std::optional<URL> cursor);
    void announceFocus() const;

    Node tree;
    std::vector<Node> levels;
    std::vector<CleanerCore::SunburstSegment> arcs;
    std::optional<URL> hoveredURL;
    std::optional<URL> cursorURL;
};
