#include "Agent/TrayAgent.hpp"

#include "Agent/AgentLifecycle.hpp"
#include "Agent/TrayIconImage.hpp"
#include "App/AppLifecycle.hpp"
#include "App/AppModel.hpp"
#include "App/ZephraneModule.hpp"

#include <QCursor>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QScreen>
#include <QSystemTrayIcon>

TrayAgent::TrayAgent(AppModel& model, QQmlEngine& engine, QWindow& mainWindow, bool trayAvailable,
                     MenuBarModel::Sources sources, QObject* parent)
    : QObject(parent), app(model), engine(engine), mainWindow(mainWindow), trayAvailable(trayAvailable),
      menuModel(new MenuBarModel(std::move(sources), this)) {
    connect(app.preferences(), &Preferences::showMenuBarAgentChanged, this, &TrayAgent::follow);
    connect(menuModel, &MenuBarModel::snapshotChanged, this, &TrayAgent::updateToolTip);
    follow();
}

TrayAgent::~TrayAgent() {
    if (popupWindow)
        popupWindow->removeEventFilter(this);
    delete popupWindow;
}

bool TrayAgent::active() const {
    return AgentLifecycle::inEffect(AgentLifecycle::isAgentOn(*app.preferences()), trayAvailable);
}

void TrayAgent::follow() {
    const bool on = active();
    QGuiApplication::setQuitOnLastWindowClosed(
        AppLifecycle::quitsOnLastWindowClosed(AgentLifecycle::isAgentOn(*app.preferences()), trayAvailable));
    if (on && !tray) {
        tray = new QSystemTrayIcon(TrayIconImage::icon(), this);
        connect(tray, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
            if (reason != QSystemTrayIcon::Trigger && reason != QSystemTrayIcon::Context)
                return;
            if (popupWindow && popupWindow->isVisible())
                hidePopup();
            else
                showPopup(QCursor::pos());
        });
        updateToolTip();
        tray->show();
    } else if (!on && tray) {
        hidePopup();
        delete tray;
        tray = nullptr;
        // Nothing would be left to bring a hidden window back.
        if (!mainWindow.isVisible())
            AgentLifecycle::showMainWindow(app, mainWindow);
    }
}

void TrayAgent::updateToolTip() {
    if (tray)
        tray->setToolTip(menuModel->summaryText());
}

void TrayAgent::showPopup(const QPoint& where) {
    if (!popupWindow) {
        QQmlComponent component(&engine, QUrl(QString::fromLatin1(ZephraneModule::root) +
                                              QStringLiteral("Agent/TrayPopup.qml")));
        QObject* made = component.createWithInitialProperties(
            {{QStringLiteral("agent"), QVariant::fromValue(this)},
             {QStringLiteral("appModel"), QVariant::fromValue(&app)}});
        popupWindow = qobject_cast<QQuickWindow*>(made);
        if (!popupWindow) {
            qWarning("%s", qPrintable(component.errorString()));
            delete made;
            return;
        }
        popupWindow->installEventFilter(this);
        connect(popupWindow, &QWindow::visibleChanged, this, &TrayAgent::reportVisibility);
    }
    // Placed beside the pointer, kept whole inside the screen's free area.
    const QScreen* screen = QGuiApplication::screenAt(where);
    const QRect area = screen ? screen->availableGeometry() : QRect(QPoint(0, 0), popupWindow->size());
    const QSize size = popupWindow->size();
    const int x = std::clamp(where.x() - size.width() / 2, area.left(), std::max(area.left(), area.right() - size.width()));
    const int y = where.y() > area.center().y() ? where.y() - size.height() : where.y();
    popupWindow->setPosition(x, std::clamp(y, area.top(), std::max(area.top(), area.bottom() - size.height())));
    popupWindow->show();
    popupWindow->requestActivate();
    reportVisibility();
}

void TrayAgent::hidePopup() {
    if (popupWindow)
        popupWindow->hide();
    reportVisibility();
}

void TrayAgent::showMain(std::optional<Channel> channel) {
    hidePopup();
    AgentLifecycle::showMainWindow(app, mainWindow, channel);
}

bool TrayAgent::eventFilter(QObject* watched, QEvent* event) {
    // Exposure changes when the popup is covered, uncovered or minimized.
    if (watched == popupWindow && (event->type() == QEvent::Expose || event->type() == QEvent::Hide))
        QMetaObject::invokeMethod(this, &TrayAgent::reportVisibility, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

void TrayAgent::reportVisibility() {
    menuModel->setOnScreen(popupWindow && popupWindow->isVisible() && popupWindow->isExposed());
}
