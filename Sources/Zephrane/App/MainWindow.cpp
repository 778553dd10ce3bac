#include "App/MainWindow.hpp"

#include "App/AppModel.hpp"
#include "App/ZephraneModule.hpp"
#include "Modules/Apps/AppIconProvider.hpp"

#include <QQmlApplicationEngine>
#include <QQuickWindow>

namespace MainWindow {

QQuickWindow* load(QQmlApplicationEngine& engine, AppModel& model) {
    if (engine.imageProvider(QString::fromLatin1(AppIconProvider::name)) == nullptr)
        engine.addImageProvider(QString::fromLatin1(AppIconProvider::name), new AppIconProvider);
    engine.setInitialProperties({{QStringLiteral("appModel"), QVariant::fromValue(&model)}});
    engine.load(QUrl(QString::fromLatin1(ZephraneModule::root) + QStringLiteral("App/Main.qml")));
    const auto roots = engine.rootObjects();
    return roots.isEmpty() ? nullptr : qobject_cast<QQuickWindow*>(roots.constLast());
}

} // namespace MainWindow
