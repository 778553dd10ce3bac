#pragma once

#include "App/Channel.hpp"
#include "Modules/Home/ChannelReading.hpp"
#include "Modules/Home/HomeDisk.hpp"
#include "Modules/Home/HomeSnapshot.hpp"

#include <QObject>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

class AppModel;
class ModulePhaseModel;

// Home's model: everything it shows is read off the other channels' models when asked, so it owns
// no results of its own. Makes no reading of the disk until the screen asks for one.
class HomeModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by AppModel")
    Q_PROPERTY(HomeSnapshot snapshot READ snapshot NOTIFY changed)
    Q_PROPERTY(QVariantList readings READ readingValues NOTIFY changed)
    Q_PROPERTY(QString scannedAtText READ scannedAtText NOTIFY changed)
    Q_PROPERTY(HomeDisk disk READ disk NOTIFY diskChanged)

public:
    explicit HomeModel(AppModel& app, QObject* parent = nullptr);

    HomeSnapshot snapshot() const;
    ChannelReading reading(Channel channel) const;
    const HomeDisk& disk() const { return diskReading; }

    // Runs a smart scan and, when it ends, announces what it found.
    Q_INVOKABLE void runSmartScan();
    // The result panel's key: to the junk when it found something, else to the leftovers.
    Q_INVOKABLE void review();
    // Reads the startup volume again (the screen asks when it appears; a smart scan's start and
    // end do too).
    Q_INVOKABLE void refreshDisk();

    // Tests point the disk reading at a folder of their own.
    void setDiskPath(QString path) { diskPath = std::move(path); }

    QVariantList readingValues() const;
    // When the last smart scan of this session ended, or that none has.
    QString scannedAtText() const;

signals:
    void changed();
    void diskChanged();

private:
    HomeSnapshot::Step step(const ModulePhaseModel& model, bool reported) const;
    ChannelReading bytesReading(Channel channel, const ModulePhaseModel& model) const;

    AppModel& app;
    HomeDisk diskReading;
    QString diskPath = QStringLiteral("/");
    bool diskRead = false;
};
