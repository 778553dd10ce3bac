#include "Modules/Lens/SpaceLensModel.hpp"

#include "App/Announcer.hpp"
#include "CleanerCore/DiskTree/DiskTreeScanner.hpp"
#include "CleanerCore/DiskTree/SunburstLayout.hpp"
#include "CleanerCore/Display/PercentText.hpp"
#include "Modules/Lens/LensRowsModel.hpp"
#include "Modules/Shared/PhaseFormat.hpp"
#include "Painel/ByteFormat.hpp"

#include <QDir>
#include <QUrl>

#include <algorithm>

using CleanerCore::DiskNode;
using CleanerCore::URL;

namespace {

// What the scanner keeps: every folder's twelve largest items and anything of at least a megabyte.
constexpr std::int64_t minimumNodeSize = 1000000;
constexpr std::int64_t alwaysKeep = 12;

QString text(const std::string& value) {
    return QString::fromStdString(value);
}

} // namespace

SpaceLensModel::SpaceLensModel(QObject* parent)
    : ModulePhaseModel(parent), rootFolder(URL::file(QDir::homePath().toStdString())),
      rowsModel(new LensRowsModel(*this, this)) {
    actions()->setIdleSecondary(qtTrId("lens.idle.chooseOther"), [this] { chooseFolderAndScan(); });
    connect(this, &ModulePhaseModel::selectionChanged, rowsModel, &LensRowsModel::refreshStates);
}

void SpaceLensModel::setScanRoot(URL folder) {
    if (folder == rootFolder)
        return;
    rootFolder = std::move(folder);
    emit scanRootChanged();
}

std::vector<ScanUnit> SpaceLensModel::scanUnits() {
    const std::string folder = rootFolder.path();
    auto work = [folder](std::stop_token stop, ScanFeed& feed) -> ScanUnitResult {
        const CleanerCore::DiskTreeScanner scanner{folder, minimumNodeSize, alwaysKeep};
        const DiskNode::Pointer node = scanner.scan(
            [&feed](std::int64_t count, const std::optional<std::string>& listed) {
                feed.found(static_cast<int>(std::min<std::int64_t>(count, INT_MAX)));
                if (listed)
                    feed.reading(text(*listed));
            },
            stop);
        return {node->size(), static_cast<int>(std::min<std::int64_t>(node->itemCount(), INT_MAX)),
                std::nullopt, node};
    };
    return {ScanUnit{QStringLiteral("tree"), qtTrId("lens.step.tree"), text(folder), std::move(work)}};
}

void SpaceLensModel::adoptResults(std::vector<std::any> payloads) {
    tree = payloads.empty() ? nullptr : std::any_cast<DiskNode::Pointer>(payloads.front());
    // A new tree starts unmarked and unhighlighted; the shared selection is rebuilt from categories().
    setSelection({});
    hoveredURL.reset();
    cursorURL.reset();
    setPath(tree ? std::vector<Node>{tree} : std::vector<Node>{});
    emit highlightChanged();
}

std::vector<CleanupCategory> SpaceLensModel::categories() const {
    std::vector<CleanupCategory> out;
    for (const Node& node : markedNodes()) {
        const URL url = node->url();
        out.push_back(
            {text(url.path()), displayName(url), {CleanerCore::CleanupItem{url, node->size(), {}, true}}});
    }
    return out;
}

void SpaceLensModel::dropRemoved(const std::unordered_set<URL>& removed) {
    tree = DiskNode::removing(tree, removed);
    std::vector<Node> kept{tree};
    for (std::size_t i = 1; i < navigation.size(); ++i) {
        Node found = DiskNode::find(tree, navigation[i]->url());
        if (!found)
            break;
        kept.push_back(std::move(found));
    }
    std::unordered_set<URL> marks = selection();
    std::erase_if(marks, [&](const URL& mark) {
        return std::any_of(removed.begin(), removed.end(),
                           [&](const URL& gone) { return mark.isInside(gone); });
    });
    setSelection(std::move(marks));
    hoveredURL.reset();
    cursorURL.reset();
    setPath(std::move(kept));
    emit highlightChanged();
}

void SpaceLensModel::setPath(std::vector<Node> nodes) {
    navigation = std::move(nodes);
    arcs = CleanerCore::SunburstLayout::segments(focusNode());
    rowsModel->reload();
    emit treeChanged();
}

void SpaceLensModel::setHighlight(std::optional<URL> hover, std::optional<URL> cursor) {
    if (hover == hoveredURL && cursor == cursorURL)
        return;
    hoveredURL = std::move(hover);
    cursorURL = std::move(cursor);
    rowsModel->refreshStates();
    emit highlightChanged();
}

void SpaceLensModel::setHovered(std::optional<URL> url) {
    setHighlight(std::move(url), cursorURL);
}

void SpaceLensModel::setCursor(std::optional<URL> url) {
    setHighlight(hoveredURL, std::move(url));
}

void SpaceLensModel::setCursorPath(const QString& path) {
    setCursor(path.isEmpty() ? std::nullopt : std::optional(URL::file(path.toStdString())));
}

void SpaceLensModel::setHoveredPath(const QString& path) {
    setHovered(path.isEmpty() ? std::nullopt : std::optional(URL::file(path.toStdString())));
}

std::vector<SpaceLensModel::Node> SpaceLensModel::rowNodes() const {
    const Node focus = focusNode();
    if (!focus)
        return {};
    return {focus->children().begin(), focus->children().end()};
}

SpaceLensModel::Node SpaceLensModel::highlightedNode() const {
    const auto url = highlighted();
    const Node focus = focusNode();
    return url && focus ? DiskNode::find(focus, *url) : nullptr;
}

std::optional<URL> SpaceLensModel::highlightedRow() const {
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

bool SpaceLensModel::isMarked(const URL& url) const {
    return std::any_of(selection().begin(), selection().end(),
                       [&](const URL& mark) { return url.isInside(mark); });
}

bool SpaceLensModel::hasMarkedInside(const URL& url) const {
    return std::any_of(selection().begin(), selection().end(),
                       [&](const URL& mark) { return mark.isInside(url); });
}

std::vector<SpaceLensModel::Node> SpaceLensModel::markedNodes() const {
    std::vector<Node> nodes;
    if (!tree)
        return nodes;
    for (const URL& mark : selection()) {
        const bool enclosed = std::any_of(selection().begin(), selection().end(), [&](const URL& other) {
            return !(other == mark) && mark.isInside(other);
        });
        if (enclosed)
            continue;
        if (Node node = DiskNode::find(tree, mark))
            nodes.push_back(std::move(node));
    }
    std::sort(nodes.begin(), nodes.end(), [](const Node& a, const Node& b) { return largestFirst(*a, *b); });
    return nodes;
}

std::vector<std::string> SpaceLensModel::markedPaths() const {
    std::vector<std::string> paths;
    for (const URL& mark : selection())
        paths.push_back(CleanerCore::standardizedPath(mark.path()));
    return paths;
}

SpaceLensModel::Node SpaceLensModel::nodeAt(const URL& url) const {
    const Node focus = focusNode();
    Node found = focus ? DiskNode::find(focus, url) : nullptr;
    return found || !tree ? found : DiskNode::find(tree, url);
}

void SpaceLensModel::goUp() {
    if (navigation.size() < 2)
        return;
    const URL left = navigation.back()->url();
    std::vector<Node> shorter(navigation.begin(), navigation.end() - 1);
    hoveredURL.reset();
    cursorURL = left; // the folder one came from stays lit
    setPath(std::move(shorter));
    emit highlightChanged();
    announceFocus();
}

void SpaceLensModel::goToLevel(int level) {
    if (level < 0 || level + 1 >= static_cast<int>(navigation.size()))
        return;
    hoveredURL.reset();
    cursorURL = navigation[static_cast<std::size_t>(level) + 1]->url();
    setPath(std::vector<Node>(navigation.begin(), navigation.begin() + level + 1));
    emit highlightChanged();
    announceFocus();
}

void SpaceLensModel::open(const URL& url) {
    const Node focus = focusNode();
    const Node node = focus ? DiskNode::find(focus, url) : nullptr;
    if (!node || !node->isDirectory() || node->children().empty())
        return;
    hoveredURL.reset();
    cursorURL.reset();
    std::vector<Node> deeper = navigation;
    deeper.push_back(node);
    setPath(std::move(deeper));
    emit highlightChanged();
    announceFocus();
}

void SpaceLensModel::moveCursor(int delta) {
    const std::vector<Node> rows = rowNodes();
    if (rows.empty())
        return;
    const int last = static_cast<int>(rows.size()) - 1;
    int index = delta < 0 ? last : 0;
    if (const auto current = highlightedRow()) {
        const auto at =
            std::find_if(rows.begin(), rows.end(), [&](const Node& row) { return row->url() == *current; });
        index = std::clamp(static_cast<int>(at - rows.begin()) + delta, 0, last);
    }
    setHighlight(std::nullopt, rows[static_cast<std::size_t>(index)]->url());
}

void SpaceLensModel::openHighlighted() {
    if (const auto row = highlightedRow())
        open(*row);
}

void SpaceLensModel::toggleHighlighted() {
    if (const auto row = highlightedRow())
        toggleMark(*row);
}

bool SpaceLensModel::handleKey(int key, int modifiers, bool rightToLeft) {
    const bool modified = (modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    const int back = rightToLeft ? Qt::Key_Right : Qt::Key_Left;
    const int forward = rightToLeft ? Qt::Key_Left : Qt::Key_Right;
    if (key == Qt::Key_Up)
        modified ? goUp() : moveCursor(-1);
    else if (key == Qt::Key_Down)
        modified ? openHighlighted() : moveCursor(1);
    else if (key == back)
        goUp();
    else if (key == forward || key == Qt::Key_Return || key == Qt::Key_Enter)
        openHighlighted();
    else if (key == Qt::Key_Space)
        toggleHighlighted();
    else if (key == Qt::Key_Delete || key == Qt::Key_Backspace)
        requestRemoval();
    else
        return false;
    return true;
}

QVariantMap SpaceLensModel::bytesParts(qint64 count) const {
    return {{"text", ByteFormat::text(static_cast<double>(count))}};
}

QString SpaceLensModel::localeName() const {
    return PhaseFormat::locale().bcp47Name();
}

void SpaceLensModel::toggleMark(const URL& url) {
    if (url.lastPathComponent() == DiskNode::smallItemsComponent)
        return;
    if (const Node node = nodeAt(url); node && node->isAggregate())
        return;
    std::unordered_set<URL> marks = selection();
    if (marks.erase(url) == 0) {
        if (isMarked(url))
            return; // an enclosing folder already covers it
        std::erase_if(marks, [&](const URL& mark) { return mark.isInside(url); });
        marks.insert(url);
    }
    setSelection(std::move(marks));
}

void SpaceLensModel::chooseFolderAndScan() {
    if (phase() == ModulePhase::scanning || phase() == ModulePhase::cleaning)
        return;
    emit folderChoiceRequested(QUrl::fromLocalFile(scanRootPath()));
}

void SpaceLensModel::scanFolder(const QUrl& folder) {
    if (!folder.isLocalFile() || phase() == ModulePhase::scanning || phase() == ModulePhase::cleaning)
        return;
    setScanRoot(URL::file(folder.toLocalFile().toStdString()));
    startScan();
}

void SpaceLensModel::announceFocus() const {
    if (const Node focus = focusNode())
        Announcer::announce(qtTrId("lens.announce.folder").arg(displayName(focus->url())));
}

QString SpaceLensModel::displayName(const URL& url) {
    const std::string path = CleanerCore::standardizedPath(url.path());
    if (path == CleanerCore::standardizedPath(QDir::homePath().toStdString()))
        return qtTrId("lens.home");
    if (path == "/")
        return QStringLiteral("/");
    return text(url.lastPathComponent());
}

QString SpaceLensModel::share(std::int64_t size, std::int64_t whole, const QLocale& locale) {
    return text(CleanerCore::PercentText::share(size, whole, locale.bcp47Name().toStdString()));
}

QStringList SpaceLensModel::pathNames() const {
    QStringList names;
    for (const Node& node : navigation)
        names.append(displayName(node->url()));
    return names;
}

QString SpaceLensModel::focusName() const {
    const Node focus = focusNode();
    return focus ? displayName(focus->url()) : QString();
}

int SpaceLensModel::highlightedRowIndex() const {
    const auto row = highlightedRow();
    if (!row)
        return -1;
    const std::vector<Node> rows = rowNodes();
    const auto at =
        std::find_if(rows.begin(), rows.end(), [&](const Node& node) { return node->url() == *row; });
    return at == rows.end() ? -1 : static_cast<int>(at - rows.begin());
}

QString SpaceLensModel::highlightedPath() const {
    const auto url = highlighted();
    return url ? text(url->path()) : QString();
}

QString SpaceLensModel::centreTitle() const {
    const Node shown = highlightedNode() ? highlightedNode() : focusNode();
    if (!shown)
        return {};
    return shown->isAggregate() ? text(std::string(shown->name())) : displayName(shown->url());
}

qint64 SpaceLensModel::centreBytes() const {
    const Node shown = highlightedNode() ? highlightedNode() : focusNode();
    return shown ? shown->size() : 0;
}

QString SpaceLensModel::centreLine() const {
    const Node focus = focusNode();
    if (!focus)
        return {};
    const Node shown = highlightedNode();
    if (!shown || shown == focus)
        return qtTrId("lens.items")
            .arg(PhaseFormat::locale().toString(static_cast<qlonglong>(focus->itemCount())));
    // "49% of Music": the share is of the folder in focus, which the title above no longer names.
    return qtTrId("lens.center.share")
        .arg(share(shown->size(), focus->size(), PhaseFormat::locale()), displayName(focus->url()));
}

int SpaceLensModel::markedCount() const {
    return static_cast<int>(markedNodes().size());
}

qint64 SpaceLensModel::markedBytes() const {
    qint64 total = 0;
    for (const Node& node : markedNodes())
        total += node->size();
    return total;
}
