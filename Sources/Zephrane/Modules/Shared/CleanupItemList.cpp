#include "Modules/Shared/CleanupItemList.hpp"

#include "Modules/Shared/CleanupSelection.hpp"
#include "Painel/ByteFormat.hpp"

CleanupItemList::CleanupItemList(std::vector<CleanerCore::CleanupItem> list, const CleanupSelection& chosen,
                                 Subtitle describe, QObject* parent)
    : QAbstractListModel(parent), items(std::move(list)), selection(chosen), subtitle(std::move(describe)) {}

CleanupItemList::CleanupItemList(std::vector<CleanerCore::CleanupItem> list, const CleanupSelection& chosen,
                                 Subtitle describe, Name named, QObject* parent)
    : QAbstractListModel(parent), items(std::move(list)), selection(chosen), subtitle(std::move(describe)),
      name(std::move(named)) {}

int CleanupItemList::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(items.size());
}

QHash<int, QByteArray> CleanupItemList::roleNames() const {
    return {{PathRole, "path"},         {NameRole, "name"},       {SizeTextRole, "sizeText"},
            {SubtitleRole, "subtitle"}, {HasNoteRole, "hasNote"}, {SelectedRole, "selected"}};
}

QVariant CleanupItemList::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const CleanerCore::CleanupItem& item = items[static_cast<std::size_t>(index.row())];
    switch (role) {
    case PathRole:
        return QString::fromStdString(item.url.path());
    case NameRole:
        return name ? name(item) : QString::fromStdString(item.name());
    case SizeTextRole:
        return ByteFormat::text(static_cast<double>(item.size));
    case SubtitleRole:
        return subtitle ? subtitle(item) : QString();
    case HasNoteRole:
        return item.note.has_value();
    case SelectedRole:
        return selection.contains(item.url);
    default:
        return {};
    }
}

void CleanupItemList::refreshSelection() {
    if (!items.empty())
        emit dataChanged(index(0), index(rowCount() - 1), {SelectedRole});
}
