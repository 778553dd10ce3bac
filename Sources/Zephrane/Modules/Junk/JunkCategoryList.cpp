#include "Modules/Junk/JunkCategoryList.hpp"

#include "Modules/Junk/SystemJunkModel.hpp"
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
    case IsOnRole:
        return junk->selectionState(group).isOn;
    case IsMixedRole:
        return junk->selectionState(group).isMixed;
    case FractionRole:
        return largest > 0 ? static_cast<double>(group.totalSize()) / static_cast<double>(largest) : 0.0;
    case TagRole: {
        // A rule left off by default, or an item of an open application, wants a look before removal.
        const bool noted =
            std::ranges::any_of(group.items, [](const CleanupItem& item) { return item.note.has_value(); });
        return !group.rule.selectedByDefault || noted ? QString(QT_TRID_NOOP("junk.tag.review")) : QString();
    }
    case ItemsRole:
        return items(group);
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

QVariantList JunkCategoryList::items(const JunkGroup& group) const {
    QVariantList list;
    for (const CleanupItem& item : group.items)
        list.append(QVariantMap{{"path", QString::fromStdString(item.url.path())},
                                {"name", QString::fromStdString(item.name())},
                                {"sizeText", ByteFormat::text(static_cast<double>(item.size))},
                                {"subtitle", subtitle(item, junk->home())},
                                {"hasNote", item.note.has_value()},
                                {"selected", junk->selection().contains(item.url)}});
    return list;
}

void JunkCategoryList::rebuild() {
    beginResetModel();
    rows.clear();
    largest = 0;
    for (const JunkGroup& group : junk->groups()) {
        largest = std::max(largest, group.totalSize());
        if (!group.items.empty())
            rows.push_back(group);
    }
    endResetModel();
    emit countChanged();
}

void JunkCategoryList::selectionChanged() {
    if (!rows.empty())
        emit dataChanged(index(0), index(static_cast<int>(rows.size()) - 1),
                         {IsOnRole, IsMixedRole, ItemsRole});
}
