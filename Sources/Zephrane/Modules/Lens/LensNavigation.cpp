#include "Modules/Lens/LensNavigation.hpp"

#include "App/Announcer.hpp"
#include "CleanerCore/DiskTree/SunburstLayout.hpp"
#include "Modules/Lens/LensText.hpp"
#include "Modules/Shared/PhaseFormat.hpp"

#include <algorithm>

using CleanerCore::DiskNode;

std::vector<LensNavigation::Node> LensNavigation::rowNodes() const {
    const Node focus = focusNode();
    if (!focus)
        return {};
    return {focus->children().begin(), focus->children().end()};
}

void LensNavigation::show(Node root) {
    tree = std::move(root);
    hoveredURL.reset();
    cursorURL.reset();
    setPath(tree ? std::vector<Node>{tree} : std::vector<Node>{});
    emit highlightChanged();
}

void LensNavigation::keepAfterRemoval(Node root) {
    tree = std::move(root);
    std::vector<Node> kept{tree};
    for (std::size_t i = 1; i < levels.size(); ++i) {
        Node found = DiskNode::find(tree, levels[i]->url());
        if (!found)
            break;
        kept.push_back(std::move(found));
    }
    hoveredURL.reset();
    cursorURL.reset();
    setPath(std::move(kept));
    emit highlightChanged();
}

void LensNavigation::setPath(std::vector<Node> nodes) {
    levels = std::move(nodes);
    arcs = CleanerCore::SunburstLayout::segments(focusNode());
    emit pathChanged();
}

void LensNavigation::setHighlight(std::optional<URL> hover, std::optional<URL> cursor) {
    if (hover == hoveredURL && cursor == cursorURL)
        return;
    hoveredURL = std::move(hover);
    cursorURL = std::move(cursor);
    emit highlightChanged();
}

void LensNavigation::setHovered(std::optional<URL> url) {
    setHighlight(std::move(url), cursorURL);
}

void LensNavigation::setCursor(std::optional<URL> url) {
    setHighlight(hoveredURL, std::move(url));
}

void LensNavigation::setCursorPath(const QString& path) {
    setCursor(path.isEmpty() ? std::nullopt : std::optional(URL::file(path.toStdString())));
}

void LensNavigation::setHoveredPath(const QString& path) {
    setHovered(path.isEmpty() ? std::nullopt : std::optional(URL::file(path.toStdString())));
}

void LensNavigation::leave(const QString& path) {
    if (hoveredURL && *hoveredURL == URL::file(path.toStdString()))
        setHovered(std::nullopt);
}

LensNavigation::Node LensNavigation::highlightedNode() const {
    const auto url = highlighted();
    const Node focus = focusNode();
    return url && focus ? DiskNode::find(focus, *url) : nullptr;
}

std::optional<CleanerCore::URL> LensNavigation::highlightedRow() const {
    const auto url = highlighted();
    if (!url)
        return std::nullopt;
    for (const Node& row : rowNodes()) {
        URL rowURL = row->url();
        if (url->isInside(rowURL))
            return rowURL;
    }
    return std::nullopt;
}

LensNavigation::Node LensNavigation::nodeAt(const URL& url) const {
    const Node focus = focusNode();
    Node found = focus ? DiskNode::find(focus, url) : nullptr;
    return found || !tree ? found : DiskNode::find(tree, url);
}

void LensNavigation::goUp() {
    if (levels.size() < 2)
        return;
    const URL left = levels.back()->url();
    std::vector<Node> shorter(levels.begin(), levels.end() - 1);
    hoveredURL.reset();
    cursorURL = left; // the folder one came from stays lit
    setPath(std::move(shorter));
    emit highlightChanged();
    announceFocus();
}

void LensNavigation::goToLevel(int level) {
    if (level < 0 || level + 1 >= static_cast<int>(levels.size()))
        return;
    hoveredURL.reset();
    cursorURL = levels[static_cast<std::size_t>(level) + 1]->url();
    setPath(std::vector<Node>(levels.begin(), levels.begin() + level + 1));
    emit highlightChanged();
    announceFocus();
}

void LensNavigation::open(const URL& url) {
    const Node focus = focusNode();
    const Node node = focus ? DiskNode::find(focus, url) : nullptr;
    if (!node || !node->isDirectory() || node->children().empty())
        return;
    // A folder deeper than the rows (a ring of the map) is reached through the folders above it,
    // so that the way back up passes each of them.
    std::vector<Node> deeper = levels;
    for (const Node& row : rowNodes())
        if (!(row->url() == url) && url.isInside(row->url()))
            for (Node step = row; step && !(step->url() == url);) {
                deeper.push_back(step);
                const auto next = std::ranges::find_if(step->children(),
                                                       [&](const Node& child) { return url.isInside(child->url()); });
                step = next == step->children().end() ? nullptr : *next;
            }
    deeper.push_back(node);
    hoveredURL.reset();
    cursorURL.reset();
    setPath(std::move(deeper));
    emit highlightChanged();
    announceFocus();
}

void LensNavigation::moveCursor(int delta) {
    const std::vector<Node> rows = rowNodes();
    if (rows.empty())
        return;
    const int last = static_cast<int>(rows.size()) - 1;
    int index = delta < 0 ? last : 0;
    if (const auto current = highlightedRow()) {
        const auto at = std::ranges::find_if(rows, [&](const Node& row) { return row->url() == *current; });
        index = std::clamp(static_cast<int>(at - rows.begin()) + delta, 0, last);
    }
    setHighlight(std::nullopt, rows[static_cast<std::size_t>(index)]->url());
}

void LensNavigation::openHighlighted() {
    if (const auto row = highlightedRow())
        open(*row);
}

void LensNavigation::announceFocus() const {
    if (const Node focus = focusNode())
        Announcer::announce(qtTrId("lens.announce.folder").arg(LensText::displayName(focus->url())));
}

QStringList LensNavigation::pathNames() const {
    QStringList names;
    for (const Node& node : levels)
        names.append(LensText::displayName(node->url()));
    return names;
}

QString LensNavigation::focusName() const {
    const Node focus = focusNode();
    return focus ? LensText::displayName(focus->url()) : QString();
}

int LensNavigation::highlightedRowIndex() const {
    const auto row = highlightedRow();
    if (!row)
        return -1;
    const std::vector<Node> rows = rowNodes();
    const auto at = std::ranges::find_if(rows, [&](const Node& node) { return node->url() == *row; });
    return at == rows.end() ? -1 : static_cast<int>(at - rows.begin());
}

QString LensNavigation::highlightedPath() const {
    const auto url = highlighted();
    return url ? QString::fromStdString(url->path()) : QString();
}

QString LensNavigation::centreTitle() const {
    const Node shown = highlightedNode() ? highlightedNode() : focusNode();
    if (!shown)
        return {};
    return shown->isAggregate() ? QString::fromStdString(std::string(shown->name()))
                                : LensText::displayName(shown->url());
}

qint64 LensNavigation::centreBytes() const {
    const Node shown = highlightedNode() ? highlightedNode() : focusNode();
    return shown ? shown->size() : 0;
}

QString LensNavigation::centreLine() const {
    const Node focus = focusNode();
    if (!focus)
        return {};
    const Node shown = highlightedNode();
    if (!shown || shown == focus) {
        const auto count = focus->itemCount();
        return (count == 1 ? qtTrId("lens.items.one") : qtTrId("lens.items"))
            .arg(PhaseFormat::locale().toString(static_cast<qlonglong>(count)));
    }
    // "49% of Music": the share is of the folder in focus, which the title above no longer names.
    return qtTrId("lens.center.share")
        .arg(LensText::share(shown->size(), focus->size(), PhaseFormat::locale()),
             LensText::displayName(focus->url()));
}
