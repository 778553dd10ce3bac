#include "Modules/Junk/JunkCategoryList.hpp"

#include "Modules/Junk/SystemJunkModel.hpp"
#include "Modules/Shared/CleanupItemList.hpp"
#include "Modules/Shared/PhaseFormat.hpp"
#include "Painel/ByteFormat.hpp"

#include <QDir>

using CleanerCore::CleanupItem;
using CleanerCore::JunkGroup;

JunkCategoryList::JunkCategoryList(SystemJunkModel* model) : QAbstractListModel(model), junk(model) {
    connect(junk, &ModulePhaseModel::resultsChanged, this, &JunkCategoryList::rebuild);
    connect(junk, &ModulePhaseModel::selectionChanged, this, &JunkCategoryList::selectionChanged);
}

int JunkCategoryList::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows.size());
}

QHash<int, QByteArray> JunkCategoryList::roleNames() const {
    return {{RuleIdRole, "ruleId"},
            {TitleRole, "title"},
            {SummaryRole, "summary"},
            {SymbolRole, "symbol"},
            {TotalBytesRole, "totalBytes"},
            {SizeTextRole, "sizeText"},
            {ItemCountRole, "itemCount"},
            {CountTextRole, "countText"},
            {IsOnRole, "isOn"},
            {IsMixedRole, "isMixed"},
            {FractionRole, "fraction"},
            {TagRole, "tag"},
            {ItemsRole, "items"}};
}

QVariant JunkCategoryList::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const JunkGroup& group = rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case RuleIdRole:
        return QString::fromStdString(group.id());
    case TitleRole:
        return QString::fromStdString(group.rule.title);
    case SummaryRole:
        return QString::fromStdString(group.rule.summary);
    case SymbolRole:
        return QString::fromStdString(group.rule.symbol);
    case TotalBytesRole:
        return QVariant::fromValue<qint64>(group.totalSize());
    case SizeTextRole:
        return ByteFormat::text(static_cast<double>(group.totalSize()));
    case ItemCountRole:
        return static_cast<int>(group.items.size());
    case CountTextRole:
        return PhaseFormat::count(static_cast<int>(group.items.size()));
    case IsOnRole:
        return junk->selection()->stateOf(group.items).isOn;
    case IsMixedRole:
        return junk->selection()->stateOf(group.items).isMixed;
    case FractionRole:
        return largest > 0 ? static_cast<double>(group.totalSize()) / static_cast<double>(largest) : 0.0;
    case TagRole: {
        // A rule left off by default, or an item of an open application, wants a look before removal.
        const bool noted =
            std::ranges::any_of(group.items, [](const CleanupItem& item) { return item.note.has_value(); });
        return !group.rule.selectedByDefault || noted ? QString(QT_TRID_NOOP("junk.tag.review")) : QString();
    }
    case ItemsRole:
        return QVariant::fromValue(itemLists[static_cast<std::size_t>(index.row())]);
    default:
        return {};
    }
}

QString JunkCategoryList::subtitle(const CleanupItem& item, const CleanerCore::URL& home) {
    if (item.note)
        return QString::fromStdString(*item.note);
    const QString path = QString::fromStdString(item.url.path());
    const QString homePath = QString::fromStdString(home.path());
    return path.startsWith(homePath + '/') ? "~" + path.mid(homePath.size()) : path;
}

void JunkCategoryList::rebuild() {
    beginResetModel();
    rows.clear();
    for (CleanupItemList* list : itemLists)
        list->deleteLater();
    itemLists.clear();
    largest = 0;
    for (const JunkGroup& group : junk->groups()) {
        largest = std::max(largest, group.totalSize());
        if (group.items.empty())
            continue;
        rows.push_back(group);
        itemLists.push_back(new CleanupItemList(
            group.items, *junk->selection(),
            [home = junk->home()](const CleanupItem& item) { return subtitle(item, home); }, this));
    }
    endResetModel();
    emit countChanged();
}

void JunkCategoryList::selectionChanged() {
    if (rows.empty())
        return;
    emit dataChanged(index(0), index(static_cast<int>(rows.size()) - 1), {IsOnRole, IsMixedRole});
    for (CleanupItemList* list : itemLists)
        list->refreshSelection();
}
