#pragma once

#include "Agent/MenuBarModel.hpp"
#include "App/Channel.hpp"

#include <QObject>
#include <QPointer>
#include <QQuickWindow>
#include <QtQml/qqmlregistration.h>

class AppModel;
class QQmlEngine;
class QSystemTrayIcon;
class QWindow;

// The tray item and its popup. Follows "showMenuBarAgent": with it on and a tray to hold the
// program, closing the main window keeps the process in the tray; otherwise closing quits. The
// popup is made on first use and tells its model whether it can be seen, so nothing samples
// while it is hidden or covered.
class TrayAgent : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The program makes the one tray agent")
    Q_PROPERTY(MenuBarModel* menu READ menu CONSTANT)

public:
    TrayAgent(AppModel& model, QQmlEngine& engine, QWindow& mainWindow, bool trayAvailable,
              MenuBarModel::Sources sources = MenuBarModel::Sources::ofThisMachine(), QObject* parent = nullptr);
    ~TrayAgent() override;

    MenuBarModel* menu() const { return menuModel; }
    // Whether the agent is on in effect: chosen and a tray present.
    bool active() const;
    QSystemTrayIcon* trayIcon() const { return tray; }
    // The popup, once made.
    QQuickWindow* popup() const { return popupWindow; }

    // Shows the popup near `where` (screen coordinates), made on first use.
    void showPopup(const QPoint& where);
    Q_INVOKABLE void hidePopup();
    // Bring the main window back: as it was, on the junk channel, on the trash channel.
    Q_INVOKABLE void open() { showMain(std::nullopt); }
    Q_INVOKABLE void openJunk() { showMain(Channel::junk); }
    Q_INVOKABLE void openTrash() { showMain(Channel::trash); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showMain(std::optional<Channel> channel);
    void follow();
    void reportVisibility();
    void updateToolTip();

    AppModel& app;
    QQmlEngine& engine;
    QWindow& mainWindow;
    const bool trayAvailable;
    MenuBarModel* menuModel;
    QSystemTrayIcon* tray = nullptr;
    QPointer<QQuickWindow> popupWindow;
};
