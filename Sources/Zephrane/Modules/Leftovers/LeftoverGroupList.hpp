#pragma once

#include "CleanerCore/Apps/OrphanGroup.hpp"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <vector>

class CleanupItemList;
class LeftoversModel;

// The rows of the leftovers results: one per group, with its box state and its items as a list of
// their own whose lamps change in place.
class LeftoverGroupList : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Rows belong to the leftovers model")
    Q_PROPERTY(int count READ rowCount NOTIFY countChanged)

public:
    enum Role { BundleIDRole = Qt::UserRole + 1, CountTextRole, SizeTextRole, IsOnRole, IsMixedRole, ItemsRole };

    explicit LeftoverGroupList(LeftoversModel* model);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    // An item's second line: the folder it was found in, as the user knows it ("in ~/.config").
    static QString subtitle(const CleanerCore::CleanupItem& item, const CleanerCore::URL& home);

signals:
    void countChanged();

private:
    void rebuild();
    void selectionChanged();

    LeftoversModel* leftovers;
    std::vector<CleanerCore::OrphanGroup> rows;
    std::vector<CleanupItemList*> itemLists;
};
