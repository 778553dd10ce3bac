#pragma once

#include "App/Channel.hpp"
#include "App/ChannelInfo.hpp"
#include "App/ChannelList.hpp"
#include "App/Preferences.hpp"
#include "Modules/Apps/UninstallerModel.hpp"
#include "Modules/Home/HomeModel.hpp"
#include "Modules/Junk/SystemJunkModel.hpp"
#include "Modules/Large/LargeFilesModel.hpp"
#include "Modules/Leftovers/LeftoversModel.hpp"
#include "Modules/Lens/SpaceLensModel.hpp"
#include "Modules/Trash/TrashModel.hpp"
#include "Modules/Updates/UpdatesModel.hpp"

#include <QDateTime>
#include <QFuture>
#include <QObject>
#include <QtQml/qqmlregistration.h>

// The composition root: owns the preferences and the model of every channel, created once in a
// fixed order, none of which starts work when it is made. Models never know each other; views
// cross channels only through open().
class AppModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("AppModel is made once, by the program")
    Q_PROPERTY(int selection READ selectionRaw WRITE openRaw NOTIFY selectionChanged)
    Q_PROPERTY(ChannelInfo current READ current NOTIFY selectionChanged)
    Q_PROPERTY(ChannelList* channels READ channels CONSTANT)
    Q_PROPERTY(Preferences* preferences READ preferences CONSTANT)
    Q_PROPERTY(SystemJunkModel* junk READ junk CONSTANT)
    Q_PROPERTY(SpaceLensModel* spaceLens READ spaceLens CONSTANT)
    Q_PROPERTY(LargeFilesModel* large READ large CONSTANT)
    Q_PROPERTY(UninstallerModel* uninstaller READ uninstaller CONSTANT)
    Q_PROPERTY(LeftoversModel* leftovers READ leftovers CONSTANT)
    Q_PROPERTY(TrashModel* trash READ trash CONSTANT)
    Q_PROPERTY(bool trayAvailable READ trayAvailable NOTIFY trayAvailableChanged)
    Q_PROPERTY(UpdatesModel* updates READ updates CONSTANT)
    Q_PROPERTY(QDateTime smartScanStartedAt READ smartScanStartedAt WRITE setSmartScanStartedAt NOTIFY
                   smartScanChanged)
    Q_PROPERTY(bool isSmartScanning READ isSmartScanning NOTIFY smartScanningChanged)
    Q_PROPERTY(HomeModel* home READ home CONSTANT)
    Q_PROPERTY(QDateTime smartScanFinishedAt READ smartScanFinishedAt WRITE setSmartScanFinishedAt NOTIFY
                   smartScanChanged)

public:
    explicit AppModel(QObject* parent = nullptr);

    Channel selection() const { return currentChannel; }
    int selectionRaw() const { return Channels::rawValue(currentChannel); }
    // Changes and notifies only when the channel differs, so observers are not woken needlessly.
    void open(Channel channel);
    // For QML and shortcuts: a raw value with no channel is ignored.
    Q_INVOKABLE void openRaw(int raw);
    // The channel on show, with its screen and model.
    ChannelInfo current() const { return ChannelInfo::of(currentChannel, *this); }

    ChannelList* channels() const { return channelList; }
    Preferences* preferences() const { return settings; }
    SystemJunkModel* junk() const { return junkModel; }
    SpaceLensModel* spaceLens() const { return lens; }
    LargeFilesModel* large() const { return largeModel; }
    UninstallerModel* uninstaller() const { return appsModel; }
    LeftoversModel* leftovers() const { return leftoversModel; }
    TrashModel* trash() const { return trashModel; }
    UpdatesModel* updates() const { return updatesModel; }

    // Whether the desktop offers a tray; without one the agent cannot hold the program.
    bool trayAvailable() const { return hasTray; }
    void setTrayAvailable(bool available);

    HomeModel* home() const { return homeModel; }

    // Scans the junk and the leftovers side by side; the future ends when both have. A second call
    // while one runs returns at once, and a model already busy is not waited for.
    QFuture<void> smartScan();
    Q_INVOKABLE void startSmartScan() { smartScan(); }
    bool isSmartScanning() const { return scanStarted.isValid(); }
    // Whether the running smart scan has heard back from the channel's model (junk or leftovers).
    bool smartScanReported(Channel channel) const;

    QDateTime smartScanStartedAt() const { return scanStarted; }
    QDateTime smartScanFinishedAt() const { return scanFinished; }
    void setSmartScanStartedAt(const QDateTime& value);
    void setSmartScanFinishedAt(const QDateTime& value);

signals:
    void selectionChanged();
    void smartScanChanged();
    void trayAvailableChanged();
    void smartScanningChanged();

private:
    Preferences* settings;
    // The channels' models, in the order they are made.
    SystemJunkModel* junkModel;
    SpaceLensModel* lens;
    LargeFilesModel* largeModel;
    UninstallerModel* appsModel;
    LeftoversModel* leftoversModel;
    TrashModel* trashModel;
    UpdatesModel* updatesModel;
    ChannelList* channelList;
    HomeModel* homeModel;

    Channel currentChannel = Channel::home;
    bool hasTray = false;
    QDateTime scanStarted;
    QDateTime scanFinished;
    bool junkReported = false;
    bool leftoversReported = false;
};
