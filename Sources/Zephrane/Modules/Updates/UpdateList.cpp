#include "Modules/Updates/UpdateList.hpp"

#include "Modules/Updates/UpdatesModel.hpp"

using CleanerCore::AppUpdate;
using CleanerCore::AppUpdateAction;
using CleanerCore::AppUpdateSource;

namespace {

QString sourceTitle(AppUpdateSource source) {
    switch (source) {
    case AppUpdateSource::sparkle:
        return qtTrId("updates.source.sparkle");
    case AppUpdateSource::appStore:
        return qtTrId("updates.source.appStore");
    case AppUpdateSource::homebrew:
        return qtTrId("updates.source.homebrew");
    case AppUpdateSource::flatpak:
        return qtTrId("updates.source.flatpak");
    }
    return {};
}

QString actionText(AppUpdateAction action) {
    switch (action) {
    case AppUpdateAction::install:
        return qtTrId("updates.action.install");
    case AppUpdateAction::openApp:
        return qtTrId("updates.action.open");
    case AppUpdateAction::openStore:
        return qtTrId("updates.action.store");
    case AppUpdateAction::copyCommand:
        return qtTrId("updates.action.copy");
    }
    return {};
}

QString stateKind(UpdatesModel::RowState::Kind kind) {
    using Kind = UpdatesModel::RowState::Kind;
    switch (kind) {
    case Kind::idle:
        return QStringLiteral("idle");
    case Kind::working:
        return QStringLiteral("working");
    case Kind::failed:
        return QStringLiteral("failed");
    case Kind::installed:
        return QStringLiteral("installed");
    case Kind::needsQuit:
        return QStringLiteral("needsQuit");
    }
    return {};
}

QString stateText(const UpdatesModel::RowState& state) {
    using Kind = UpdatesModel::RowState::Kind;
    switch (state.kind) {
    case Kind::idle:
        return {};
    case Kind::working:
        switch (state.stage) {
        case UpdatesModel::Stage::downloading:
            return qtTrId("updates.stage.downloading");
        case UpdatesModel::Stage::verifying:
            return qtTrId("updates.stage.verifying");
        case UpdatesModel::Stage::installing:
            return qtTrId("updates.stage.installing");
        }
        return {};
    case Kind::failed:
        return state.failure;
    case Kind::installed:
        return qtTrId("updates.row.installed");
    case Kind::needsQuit:
        return qtTrId("updates.row.needsQuit");
    }
    return {};
}

QString text(const std::optional<std::string>& value) {
    return value ? QString::fromStdString(*value) : QString();
}

} // namespace

UpdateList::UpdateList(UpdatesModel* model) : QAbstractListModel(model), updates(model) {
    connect(model, &UpdatesModel::resultsChanged, this, &UpdateList::refresh);
    connect(model, &UpdatesModel::statesChanged, this, &UpdateList::refresh);
}

void UpdateList::refresh() {
    QStringList next;
    for (const AppUpdate& each : updates->visibleUpdates())
        next.push_back(QString::fromStdString(each.id()));
    if (next == ids) {
        if (!ids.isEmpty())
            emit dataChanged(index(0), index(static_cast<int>(ids.size()) - 1));
        return;
    }
    beginResetModel();
    ids = std::move(next);
    endResetModel();
    emit countChanged();
}

int UpdateList::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(ids.size());
}

QVariant UpdateList::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const AppUpdate* update = updates->update(ids[index.row()]);
    if (!update)
        return {};
    switch (role) {
    case UpdateIDRole:
        return ids[index.row()];
    case Qt::DisplayRole:
    case NameRole:
        return QString::fromStdString(update->name);
    case CurrentVersionRole:
        return QString::fromStdString(update->currentVersion);
    case NewVersionRole:
        return QString::fromStdString(update->newVersion);
    case SourceTitleRole:
        return sourceTitle(update->source);
    case ActionTextRole:
        return actionText(update->action());
    case StateKindRole:
        return stateKind(updates->state(*update).kind);
    case StateTextRole:
        return stateText(updates->state(*update));
    case IsSelectableRole:
        return updates->isSelectable(*update);
    case IsSelectedRole:
        return updates->isSelected(*update);
    case NotesSummaryRole:
        return text(update->notesSummary());
    case NotesRole:
        return text(update->notes);
    case NotesLanguageRole:
        return text(update->notesLanguage);
    case HasNotesURLRole:
        return update->notesURL.has_value();
    default:
        return {};
    }
}

QHash<int, QByteArray> UpdateList::roleNames() const {
    return {{UpdateIDRole, "updateID"},
            {NameRole, "name"},
            {CurrentVersionRole, "currentVersion"},
            {NewVersionRole, "newVersion"},
            {SourceTitleRole, "sourceTitle"},
            {ActionTextRole, "actionText"},
            {StateKindRole, "stateKind"},
            {StateTextRole, "stateText"},
            {IsSelectableRole, "isSelectable"},
            {IsSelectedRole, "isSelected"},
            {NotesSummaryRole, "notesSummary"},
            {NotesRole, "notes"},
            {NotesLanguageRole, "notesLanguage"},
            {HasNotesURLRole, "hasNotesURL"}};
}
