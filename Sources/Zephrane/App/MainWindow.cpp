#include "App/MainWindow.hpp"

#include "App/AppModel.hpp"
#include "App/ZephraneModule.hpp"

#include <QQmlApplicationEngine>
#include <QQuickWindow>

namespace MainWindow {

QQuickWindow* load(QQmlApplicationEngine& engine, AppModel& model) {
    engine.setInitialProperties({{QStringLiteral("appModel"), QVariant::fromValue(&model)}});
    engine.load(QUrl(QString::fromLatin1(ZephraneModule::root) + QStringLiteral("App/Main.qml")));
    const auto roots = engine.rootObjects();
    return roots.isEmpty() ? nullptr : qobject_cast<QQuickWindow*>(roots.constLast());
}

} // namespace MainWindow
