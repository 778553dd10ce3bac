#include "Modules/Lens/LensRowsModel.hpp"

#include "Modules/Lens/LensMarks.hpp"
#include "Modules/Lens/LensText.hpp"
#include "Modules/Lens/SpaceLensModel.hpp"
#include "Modules/Shared/PhaseFormat.hpp"

LensRowsModel::LensRowsModel(const SpaceLensModel& owner, QObject* parent)
    : QAbstractListModel(parent), lens(owner) {}

int LensRowsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(nodes.size());
}

QVariant LensRowsModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const auto& node = nodes[static_cast<std::size_t>(index.row())];
    const LensNavigation& nav = *lens.navigation();
    const auto& marks = lens.selection()->urls();
    const auto focus = nav.focusNode();
    const std::int64_t whole = focus ? focus->size() : 0;
    switch (role) {
    case PathRole:
        return QString::fromStdString(node->path());
    case NameRole:
        return node->isAggregate()
                   ? QString::fromUtf8(node->name().data(), static_cast<qsizetype>(node->name().size()))
                   : LensText::displayName(node->url());
    case BytesRole:
        return QVariant::fromValue<qint64>(node->size());
    case ShareRole:
        return LensText::share(node->size(), whole, PhaseFormat::locale());
    case FractionRole:
        return whole > 0 ? static_cast<double>(node->size()) / static_cast<double>(whole) : 0.0;
    case IsHighlightedRole: {
        const auto row = nav.highlightedRow();
        return row && *row == node->url();
    }
    case IsOnRole:
        return marks.contains(node->url());
    case IsMixedRole:
        return !LensMarks::covers(marks, node->url()) && LensMarks::hasInside(marks, node->url());
    case IsCoveredRole:
        return !marks.contains(node->url()) && LensMarks::covers(marks, node->url());
    case CanMarkRole:
        return !node->isAggregate();
    case CanOpenRole:
        return node->isDirectory() && !node->children().empty();
    default:
        return {};
    }
}

QHash<int, QByteArray> LensRowsModel::roleNames() const {
    return {{PathRole, "path"},      {NameRole, "name"},         {BytesRole, "bytes"},
            {ShareRole, "share"},    {FractionRole, "fraction"}, {IsHighlightedRole, "isHighlighted"},
            {IsOnRole, "isOn"},      {IsMixedRole, "isMixed"},   {IsCoveredRole, "isCovered"},
            {CanMarkRole, "canMark"},
            {CanOpenRole, "canOpen"}};
}

void LensRowsModel::reload() {
    beginResetModel();
    nodes = lens.navigation()->rowNodes();
    endResetModel();
}

void LensRowsModel::refreshStates() {
    if (nodes.empty())
        return;
    emit dataChanged(index(0), index(static_cast<int>(nodes.size()) - 1),
                     {IsHighlightedRole, IsOnRole, IsMixedRole, IsCoveredRole});
}
