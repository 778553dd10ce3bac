#include "App/FileManager.hpp"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

namespace FileManager {

void showItem(const QString& path) {
    const QUrl folder = QUrl::fromLocalFile(QFileInfo(path).absolutePath());
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    call << QStringList{QUrl::fromLocalFile(path).toString()} << QString();
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        QDesktopServices::openUrl(folder);
        return;
    }
    // Asked without waiting: a file manager that has to start first must not freeze the window.
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call, 5000));
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, [folder](QDBusPendingCallWatcher* done) {
        if (done->isError())
            QDesktopServices::openUrl(folder);
        done->deleteLater();
    });
}

} // namespace FileManager
