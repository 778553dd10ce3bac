#include "App/AppLanguage.hpp"
#include "App/Preferences.hpp"
#include "Painel/PainelDesktopSettings.hpp"
#include "Painel/PainelTheme.hpp"
#include "TempTree.hpp"

#include <QApplication>
#include <QQuickStyle>
#include <QSettings>
#include <QtQml/qqmlextensionplugin.h>

#include <gtest/gtest.h>

Q_IMPORT_QML_PLUGIN(ZephranePlugin)

int main(int argc, char** argv) {
    // Settings and every default folder must land in a temporary home, never the real one.
    TestSupport::isolateHome();
    qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
    QApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("ZephraneTests"));
    QCoreApplication::setApplicationName(QStringLiteral("ZephraneTests"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZEPHRANE_VERSION));
    // Window tests meet the channels; the first-run flow's own tests clear this.
    QSettings().setValue(QString::fromLatin1(Preferences::onboardingDoneKey), true);
    AppLanguages::install(app, AppLanguages::rawValue(AppLanguage::english));
    PainelTheme::installFonts();
    // The look under test must not depend on the desktop the tests happen to run on.
    PainelDesktopSettings::shared().overrideWith({.reducedMotion = false, .increasedContrast = false});
    QQuickStyle::setStyle(QStringLiteral("Basic"));
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
