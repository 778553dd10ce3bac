#pragma once

#include "CleanerCore/Junk/JunkGroup.hpp"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <vector>

class CleanupItemList;
class SystemJunkModel;

// The rows of the junk results: one per group that has items, in rule order, with what a row
// draws already worked out (its check state, the share of its meter, its tag, its items as a list of
// their own, whose lamps change in place).
class JunkCategoryList : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Rows belong to the junk model")
    Q_PROPERTY(int count READ rowCount NOTIFY countChanged)

public:
    enum Role {
        RuleIdRole = Qt::UserRole + 1,
        TitleRole,
        SummaryRole,
        SymbolRole,
        TotalBytesRole,
        SizeTextRole,
        ItemCountRole,
        CountTextRole,
        IsOnRole,
        IsMixedRole,
        FractionRole,
        TagRole,
        ItemsRole,
    };

    explicit JunkCategoryList(SystemJunkModel* model);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    // What an item's second line says: its note when it has one, otherwise where it lies.
    static QString subtitle(const CleanerCore::CleanupItem& item, const CleanerCore::URL& home);

signals:
    void countChanged();

private:
    void rebuild();
    void selectionChanged();

    SystemJunkModel* junk;
    std::vector<CleanerCore::JunkGroup> rows;
    std::vector<CleanupItemList*> itemLists; // one per row, same order
    std::int64_t largest = 0;
};
