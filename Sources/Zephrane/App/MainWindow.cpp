#include "App/MainWindow.hpp"

#include "App/AppModel.hpp"

#include <QQmlApplicationEngine>
#include <QQuickWindow>

namespace MainWindow {

QQuickWindow* load(QQmlApplicationEngine& engine, AppModel& model) {
    engine.setInitialProperties({{QStringLiteral("appModel"), QVariant::fromValue(&model)}});
    engine.load(QUrl(QStringLiteral("qrc:/Zephrane/Main.qml")));
    const auto roots = engine.rootObjects();
    return roots.isEmpty() ? nullptr : qobject_cast<QQuickWindow*>(roots.constLast());
}

} // namespace MainWindow
