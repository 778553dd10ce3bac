#pragma once

#include "CleanerCore/DiskTree/DiskNode.hpp"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <vector>

class SpaceLensModel;

// The children of the folder in focus, largest first, as the list beside the map shows them.
// Marks and the highlight change rows in place; a new focus resets the list. A row is on when it
// is marked itself, covered when a folder above it is, mixed when something inside it is.
class LensRowsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Rows belong to the space lens")

public:
    enum Role {
        PathRole = Qt::UserRole + 1,
        NameRole,
        BytesRole,
        ShareRole,
        FractionRole,
        IsHighlightedRole,
        IsOnRole,
        IsMixedRole,
        IsCoveredRole,
        CanMarkRole,
        CanOpenRole,
    };

    explicit LensRowsModel(const SpaceLensModel& lens, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    void reload();
    void refreshStates();

private:
    const SpaceLensModel& lens;
    std::vector<CleanerCore::DiskNode::Pointer> nodes;
};
