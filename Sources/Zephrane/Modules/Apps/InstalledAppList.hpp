#pragma once

#include "CleanerCore/Apps/AppKind.hpp"
#include "CleanerCore/Apps/InstalledApp.hpp"
#include "CleanerCore/Files/URL.hpp"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <optional>
#include <vector>

class UninstallerModel;

// The rows of the app list: the apps the search and sort leave, each with what its row draws.
// The selected row changes in place, so the focus on the list stays.
class InstalledAppList : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Rows belong to the apps model")
    Q_PROPERTY(int count READ rowCount NOTIFY countChanged)
    Q_PROPERTY(int selectedIndex READ selectedIndex NOTIFY selectedIndexChanged)
    Q_PROPERTY(QString countText READ countText NOTIFY countChanged)

public:
    enum Role { PathRole = Qt::UserRole + 1, NameRole, DetailRole, TotalBytesRole, SizeTextRole, IconRole,
                IsSelectedRole, IsRunningRole };

    explicit InstalledAppList(UninstallerModel* model);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    int selectedIndex() const;
    QString countText() const { return countText(static_cast<int>(rows.size())); }

    // "1 app", "12 apps".
    static QString countText(int apps);
    static QString kindText(CleanerCore::AppKind kind);
    // The image provider's address of an icon file, or empty for none.
    static QString iconSource(const std::optional<CleanerCore::URL>& icon);

signals:
    void countChanged();
    void selectedIndexChanged();

private:
    void rebuild();
    void refreshState();

    UninstallerModel* apps;
    std::vector<CleanerCore::InstalledApp> rows;
};
