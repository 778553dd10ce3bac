#include "App/AppLanguage.hpp"
#include "App/AppLifecycle.hpp"
#include "App/AppModel.hpp"
#include "App/MainWindow.hpp"
#include "Painel/PainelTheme.hpp"

#include <QApplication>
#include <QQmlApplicationEngine>
#include <QQuickStyle>
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
    QQmlApplicationEngine engine;
    if (!MainWindow::load(engine, model))
        return 1;

    // Until the tray agent stands, nothing could hold the process once the window is gone.
    const bool agentShown = false;
    QGuiApplication::setQuitOnLastWindowClosed(
        AppLifecycle::quitsOnLastWindowClosed(agentShown, QSystemTrayIcon::isSystemTrayAvailable()));
    return QApplication::exec();
}
