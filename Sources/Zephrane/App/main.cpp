#include "Agent/TrayAgent.hpp"
#include "App/AppLanguage.hpp"
#include "App/AppModel.hpp"
#include "App/MainWindow.hpp"
#include "App/OutdatedAppsNotifier.hpp"
#include "Painel/PainelTheme.hpp"

#include <QApplication>
#include <QQmlApplicationEngine>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QSystemTrayIcon>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(ZephranePlugin)

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Zephrane"));
    QCoreApplication::setApplicationName(QStringLiteral("Zephrane"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZEPHRANE_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("zephrane"));

    AppLanguages::install(app, AppLanguages::resolvedLocalization(AppLanguages::atLaunch()));
    PainelTheme::installFonts();
    QQuickStyle::setStyle(QStringLiteral("Basic"));

    AppModel model;
    model.setTrayAvailable(QSystemTrayIcon::isSystemTrayAvailable());
    QQmlApplicationEngine engine;
    QQuickWindow* window = MainWindow::load(engine, model);
    if (!window)
        return 1;

    // Decides whether closing the window quits, and holds the process in the tray when it does not.
    TrayAgent agent(model, engine, *window, model.trayAvailable());
    // "--background" starts in the tray alone; without a tray to hold it the window shows as usual.
    if (agent.active() && QCoreApplication::arguments().contains(QStringLiteral("--background")))
        window->hide();

    // Lives as long as the process, which the tray keeps alive after the window closes.
    OutdatedAppsNotifier notifier(*model.preferences(), *model.updates(), QDBusConnection::sessionBus());
    QObject::connect(&notifier, &OutdatedAppsNotifier::openRequested, window, [&model, window] {
        model.open(Channel::updates);
        window->show();
        window->raise();
        window->requestActivate();
    });
    notifier.start();
    return QApplication::exec();
}
