#pragma once

#include <QAbstractListModel>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <chrono>
#include <cstdint>
#include <vector>

class LargeFilesModel;

// The rows of the large-files list: the model's visible files, in its order. A row's texts are
// made when a view first asks for them, so a list of ten thousand files costs only what is on
// screen; a change of the selection only touches the check role.
class LargeFileList : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Rows belong to the large-files model")
    Q_PROPERTY(int count READ rowCount NOTIFY countChanged)

public:
    enum Role {
        PathRole = Qt::UserRole + 1,
        NameRole,
        FolderRole,
        KindTitleRole,
        LastUsedTextRole,
        BytesRole,
        SizeTextRole,
        FractionRole,
        SelectedRole,
    };

    LargeFileList(const LargeFilesModel& model, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    // The visible files changed: a new list.
    void reload();
    void refreshSelection();

    // A folder below the home as "~/…", any other as it is.
    static QString shortFolder(const QString& folder, const QString& home);

signals:
    void countChanged();

private:
    struct Texts {
        bool made = false;
        QString folder;
        QString kind;
        QString lastUsed;
        QString size;
    };
    const Texts& textsOf(int row) const;

    const LargeFilesModel& large;
    std::chrono::system_clock::time_point reference; // "used 2 months ago" counts from here
    std::int64_t largest = 0;
    int count = 0;
    mutable std::vector<Texts> texts;
};
