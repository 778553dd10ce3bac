#include "Modules/Lens/SpaceLensModel.hpp"

#include "CleanerCore/DiskTree/DiskTreeScanner.hpp"
#include "Modules/Lens/LensMarks.hpp"
#include "Modules/Lens/LensRowsModel.hpp"
#include "Modules/Lens/LensText.hpp"
#include "Painel/ByteFormat.hpp"

#include <QDir>

#include <climits>

using CleanerCore::DiskNode;
using CleanerCore::URL;

namespace {

// What the scanner keeps: every folder's twelve largest items and anything of at least a megabyte.
constexpr std::int64_t minimumNodeSize = 1000000;
constexpr std::int64_t alwaysKeep = 12;

} // namespace

SpaceLensModel::SpaceLensModel(Preferences& preferences, QObject* parent)
    : ModulePhaseModel(preferences, parent), rootFolder(URL::file(QDir::homePath().toStdString())),
      nav(new LensNavigation(this)), rowsModel(new LensRowsModel(*this, this)) {
    actions()->setIdleSecondary(qtTrId("lens.idle.chooseOther"), [this] { chooseFolderAndScan(); });
    connect(nav, &LensNavigation::pathChanged, this, &SpaceLensModel::treeChanged);
    connect(nav, &LensNavigation::pathChanged, rowsModel, &LensRowsModel::reload);
    connect(nav, &LensNavigation::highlightChanged, rowsModel, &LensRowsModel::refreshStates);
    connect(this, &ModulePhaseModel::selectionChanged, rowsModel, &LensRowsModel::refreshStates);
}

void SpaceLensModel::setScanRoot(URL folder) {
    if (folder == rootFolder)
        return;
    rootFolder = std::move(folder);
    emit scanRootChanged();
}

ScanPlan SpaceLensModel::scanPlan() {
    const std::string folder = rootFolder.path();
    auto found = std::make_shared<Node>();
    auto work = [folder, found](std::stop_token stop, ScanFeed& feed) -> ScanUnitResult {
        const CleanerCore::DiskTreeScanner scanner{folder, minimumNodeSize, alwaysKeep};
        *found = scanner.scan(
            [&feed](std::int64_t count, const std::optional<std::string>& listed) {
                feed.found(static_cast<int>(std::min<std::int64_t>(count, INT_MAX)));
                if (listed)
                    feed.reading(QString::fromStdString(*listed));
            },
            stop);
        return {(*found)->size(), static_cast<int>(std::min<std::int64_t>((*found)->itemCount(), INT_MAX)),
                std::nullopt};
    };
    ScanPlan plan;
    plan.units.push_back(
        ScanUnit{QStringLiteral("tree"), qtTrId("lens.step.tree"), QString::fromStdString(folder), std::move(work)});
    // A new tree starts unmarked and unhighlighted.
    plan.adopt = [this, found] {
        selection()->set({});
        nav->show(*found);
    };
    return plan;
}

std::vector<CleanupCategory> SpaceLensModel::categories() const {
    std::vector<CleanupCategory> out;
    for (const Node& node : markedNodes()) {
        const URL url = node->url();
        out.push_back({QString::fromStdString(url.path()), LensText::displayName(url),
                       {CleanerCore::CleanupItem{url, node->size(), {}, true}}});
    }
    return out;
}

void SpaceLensModel::dropRemoved(const std::unordered_set<URL>& removed) {
    selection()->set(LensMarks::afterRemoval(selection()->urls(), removed));
    nav->keepAfterRemoval(DiskNode::removing(nav->root(), removed));
}

QString SpaceLensModel::foundSpoken() const {
    // The map has nothing selected after a scan: what it found is the size of the scanned folder.
    return ByteFormat::spoken(nav->root() ? static_cast<double>(nav->root()->size()) : 0.0);
}

bool SpaceLensModel::isMarked(const URL& url) const {
    return LensMarks::covers(selection()->urls(), url);
}

std::vector<SpaceLensModel::Node> SpaceLensModel::markedNodes() const {
    return LensMarks::nodes(selection()->urls(), nav->root());
}

void SpaceLensModel::toggleMark(const URL& url) {
    if (auto marks = LensMarks::toggled(selection()->urls(), url, nav->nodeAt(url)))
        selection()->set(std::move(*marks));
}

void SpaceLensModel::toggleHighlighted() {
    if (const auto row = nav->highlightedRow())
        toggleMark(*row);
}

bool SpaceLensModel::handleKey(int key, int modifiers, bool rightToLeft) {
    const bool modified = (modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    const int back = rightToLeft ? Qt::Key_Right : Qt::Key_Left;
    const int forward = rightToLeft ? Qt::Key_Left : Qt::Key_Right;
    if (key == Qt::Key_Up)
        modified ? nav->goUp() : nav->moveCursor(-1);
    else if (key == Qt::Key_Down)
        modified ? nav->openHighlighted() : nav->moveCursor(1);
    else if (key == back)
        nav->goUp();
    else if (key == forward || key == Qt::Key_Return || key == Qt::Key_Enter)
        nav->openHighlighted();
    else if (key == Qt::Key_Space)
        toggleHighlighted();
    else if (key == Qt::Key_Delete || key == Qt::Key_Backspace)
        requestRemoval();
    else
        return false;
    return true;
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

int SpaceLensModel::markedCount() const {
    return static_cast<int>(markedNodes().size());
}

qint64 SpaceLensModel::markedBytes() const {
    qint64 total = 0;
    for (const Node& node : markedNodes())
        total += node->size();
    return total;
}
