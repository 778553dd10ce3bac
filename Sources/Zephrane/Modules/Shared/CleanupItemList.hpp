#pragma once

#include "CleanerCore/Removal/CleanupItem.hpp"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <vector>

class CleanupSelection;

// The items of one group, as a list opened under its row shows them, each with its lamp. A change
// of selection changes the lamps in place, so the rows (and the focus on one) stay.
class CleanupItemList : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Item lists belong to a channel's rows")

public:
    enum Role { PathRole = Qt::UserRole + 1, NameRole, SizeTextRole, SubtitleRole, HasNoteRole, SelectedRole };
    // What a row's second line says about an item.
    using Subtitle = std::function<QString(const CleanerCore::CleanupItem&)>;

    // What a row's first line says; its file name when not given.
    using Name = std::function<QString(const CleanerCore::CleanupItem&)>;

    CleanupItemList(std::vector<CleanerCore::CleanupItem> items, const CleanupSelection& selection,
                    Subtitle subtitle, QObject* parent = nullptr);
    CleanupItemList(std::vector<CleanerCore::CleanupItem> items, const CleanupSelection& selection,
                    Subtitle subtitle, Name name, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    // The lamps, after the selection changed.
    void refreshSelection();

private:
    std::vector<CleanerCore::CleanupItem> items;
    const CleanupSelection& selection;
    Subtitle subtitle;
    Name name;
};
