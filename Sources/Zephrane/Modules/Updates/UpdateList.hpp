#pragma once

#include <QAbstractListModel>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

class UpdatesModel;

// The rows of the updates results: the visible updates with their state and what their key does.
class UpdateList : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Rows belong to the updates model")
    Q_PROPERTY(int count READ rowCount NOTIFY countChanged)

public:
    enum Role {
        UpdateIDRole = Qt::UserRole + 1,
        NameRole,
        CurrentVersionRole,
        NewVersionRole,
        SourceTitleRole,
        ActionTextRole,
        StateKindRole, // "idle", "working", "failed", "installed", "needsQuit"
        StateTextRole,
        IsSelectableRole,
        IsSelectedRole,
        NotesSummaryRole,
        NotesRole,
        NotesLanguageRole,
        HasNotesURLRole,
    };

    explicit UpdateList(UpdatesModel* model);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void countChanged();

private:
    void refresh();

    UpdatesModel* updates;
    QStringList ids;
};
