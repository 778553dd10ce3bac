#include "App/FileManager.hpp"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QUrl>

namespace FileManager {

QUrl fileUrl(const QByteArray& path) {
    return QUrl::fromEncoded("file://" + path.toPercentEncoding("/"), QUrl::StrictMode);
}

void showItem(const QByteArray& path) {
    const qsizetype slash = path.lastIndexOf('/');
    const QUrl folder = fileUrl(slash > 0 ? path.left(slash) : QByteArray("/"));
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    call << QStringList{fileUrl(path).toString(QUrl::FullyEncoded)} << QString();
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
