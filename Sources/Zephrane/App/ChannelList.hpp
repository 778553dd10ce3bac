#pragma once

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

class AppModel;

// The channels in column order, for the column's keys: raw value, title, short label, shortcut
// digit and the name a screen reader says.
class ChannelList : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The application model lists the channels")

public:
    enum Role { InfoRole = Qt::UserRole + 1, RawRole };

    explicit ChannelList(const AppModel& app, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    const AppModel& app;
};
