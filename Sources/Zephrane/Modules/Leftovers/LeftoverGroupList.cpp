#include "Modules/Leftovers/LeftoverGroupList.hpp"

#include "Modules/Leftovers/LeftoversModel.hpp"
#include "Modules/Shared/CleanupItemList.hpp"
#include "Modules/Shared/PhaseFormat.hpp"
#include "Painel/ByteFormat.hpp"

#include <QFileInfo>

using CleanerCore::CleanupItem;
using CleanerCore::OrphanGroup;

LeftoverGroupList::LeftoverGroupList(LeftoversModel* model) : QAbstractListModel(model), leftovers(model) {
    connect(leftovers, &ModulePhaseModel::resultsChanged, this, &LeftoverGroupList::rebuild);
    connect(leftovers, &ModulePhaseModel::selectionChanged, this, &LeftoverGroupList::selectionChanged);
}

int LeftoverGroupList::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows.size());
}

QHash<int, QByteArray> LeftoverGroupList::roleNames() const {
    return {{BundleIDRole, "bundleID"}, {CountTextRole, "countText"}, {SizeTextRole, "sizeText"},
            {IsOnRole, "isOn"},         {IsMixedRole, "isMixed"},     {ItemsRole, "items"}};
}

QVariant LeftoverGroupList::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const OrphanGroup& group = rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case BundleIDRole:
        return QString::fromStdString(group.bundleID);
    case CountTextRole:
        return PhaseFormat::count(static_cast<int>(group.items.size()));
    case SizeTextRole:
        return ByteFormat::text(static_cast<double>(group.totalSize()));
    case IsOnRole:
        return leftovers->selection()->stateOf(group.items).isOn;
    case IsMixedRole:
        return leftovers->selection()->stateOf(group.items).isMixed;
    case ItemsRole:
        return QVariant::fromValue(itemLists[static_cast<std::size_t>(index.row())]);
    default:
        return {};
    }
}

QString LeftoverGroupList::subtitle(const CleanupItem& item, const CleanerCore::URL& home) {
    QString folder = QFileInfo(QString::fromStdString(item.url.path())).path();
    const QString homePath = QString::fromStdString(home.path());
    if (folder == homePath || folder.startsWith(homePath + '/'))
        folder = "~" + folder.mid(homePath.size());
    return qtTrId("leftovers.item.in").arg(folder);
}

void LeftoverGroupList::rebuild() {
    beginResetModel();
    for (CleanupItemList* list : itemLists)
        list->deleteLater();
    itemLists.clear();
    rows = leftovers->groups();
    for (const OrphanGroup& group : rows)
        itemLists.push_back(new CleanupItemList(
            group.items, *leftovers->selection(),
            [home = leftovers->home()](const CleanupItem& item) { return subtitle(item, home); }, this));
    endResetModel();
    emit countChanged();
}

void LeftoverGroupList::selectionChanged() {
    if (rows.empty())
        return;
    emit dataChanged(index(0), index(static_cast<int>(rows.size()) - 1), {IsOnRole, IsMixedRole});
    for (CleanupItemList* list : itemLists)
        list->refreshSelection();
}
