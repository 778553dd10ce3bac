#include "Modules/Apps/InstalledAppList.hpp"

#include "Modules/Apps/AppIconProvider.hpp"
#include "Modules/Apps/UninstallerModel.hpp"
#include "Modules/Shared/PhaseFormat.hpp"
#include "Painel/ByteFormat.hpp"

#include <QUrl>

using CleanerCore::InstalledApp;

InstalledAppList::InstalledAppList(UninstallerModel* model) : QAbstractListModel(model), apps(model) {
    connect(apps, &UninstallerModel::visibleAppsChanged, this, &InstalledAppList::rebuild);
    connect(apps, &UninstallerModel::selectedAppChanged, this, &InstalledAppList::refreshState);
    connect(apps, &UninstallerModel::blockerChanged, this, &InstalledAppList::refreshState);
}

int InstalledAppList::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows.size());
}

QHash<int, QByteArray> InstalledAppList::roleNames() const {
    return {{PathRole, "path"},         {NameRole, "name"},        {DetailRole, "detail"},
            {TotalBytesRole, "totalBytes"}, {SizeTextRole, "sizeText"}, {IconRole, "icon"},
            {IsSelectedRole, "isSelected"}, {IsRunningRole, "isRunning"}};
}

QVariant InstalledAppList::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const InstalledApp& app = rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case PathRole:
        return QString::fromStdString(app.url.path());
    case NameRole:
        return QString::fromStdString(app.name);
    case DetailRole:
        return app.version ? QString::fromStdString(*app.version) + QStringLiteral(" · ") + kindText(app.kind)
                           : kindText(app.kind);
    case TotalBytesRole:
        return QVariant::fromValue<qint64>(apps->totalSize(app));
    case SizeTextRole:
        return ByteFormat::text(static_cast<double>(apps->totalSize(app)));
    case IconRole:
        return iconSource(apps->iconOf(app));
    case IsSelectedRole:
        return apps->selectedApp() && apps->selectedApp()->url == app.url;
    case IsRunningRole:
        return apps->blockerOf(app) == CleanerCore::UninstallBlocker::running;
    default:
        return {};
    }
}

int InstalledAppList::selectedIndex() const {
    const InstalledApp* selected = apps->selectedApp();
    if (!selected)
        return -1;
    const auto found = std::ranges::find(rows, selected->url, &InstalledApp::url);
    return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

QString InstalledAppList::countText(int count) {
    return (count == 1 ? qtTrId("apps.list.count.one") : qtTrId("apps.list.count.other"))
        .arg(PhaseFormat::locale().toString(count));
}

QString InstalledAppList::kindText(CleanerCore::AppKind kind) {
    switch (kind) {
    case CleanerCore::AppKind::bundle:
        return qtTrId("apps.kind.bundle");
    case CleanerCore::AppKind::flatpakUser:
        return qtTrId("apps.kind.flatpakUser");
    case CleanerCore::AppKind::flatpakSystem:
        return qtTrId("apps.kind.flatpakSystem");
    case CleanerCore::AppKind::appImage:
        return qtTrId("apps.kind.appImage");
    }
    return {};
}

QString InstalledAppList::iconSource(const std::optional<CleanerCore::URL>& icon) {
    if (!icon)
        return {};
    return QStringLiteral("image://%1/").arg(AppIconProvider::name) +
           QString::fromLatin1(QUrl::toPercentEncoding(QString::fromStdString(icon->path())));
}

void InstalledAppList::rebuild() {
    beginResetModel();
    rows = apps->visibleApps();
    endResetModel();
    emit countChanged();
    emit selectedIndexChanged();
}

void InstalledAppList::refreshState() {
    if (!rows.empty())
        emit dataChanged(index(0), index(static_cast<int>(rows.size()) - 1),
                         {IsSelectedRole, IsRunningRole, TotalBytesRole, SizeTextRole});
    emit selectedIndexChanged();
}
