#pragma once

#include "App/Channel.hpp"
#include "App/ChannelInfo.hpp"
#include "App/ChannelList.hpp"
#include "App/Preferences.hpp"
#include "Modules/Apps/UninstallerModel.hpp"
#include "Modules/Junk/SystemJunkModel.hpp"
#include "Modules/Large/LargeFilesModel.hpp"
#include "Modules/Leftovers/LeftoversModel.hpp"
#include "Modules/Lens/SpaceLensModel.hpp"
#include "Modules/Trash/TrashModel.hpp"
#include "Modules/Updates/UpdatesModel.hpp"

#include <QDateTime>
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
    Q_PROPERTY(UpdatesModel* updates READ updates CONSTANT)
    Q_PROPERTY(QDateTime smartScanStartedAt READ smartScanStartedAt WRITE setSmartScanStartedAt NOTIFY
                   smartScanChanged)
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

    QDateTime smartScanStartedAt() const { return scanStarted; }
    QDateTime smartScanFinishedAt() const { return scanFinished; }
    void setSmartScanStartedAt(const QDateTime& value);
    void setSmartScanFinishedAt(const QDateTime& value);

signals:
    void selectionChanged();
    void smartScanChanged();

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

    Channel currentChannel = Channel::home;
    QDateTime scanStarted;
    QDateTime scanFinished;
};
