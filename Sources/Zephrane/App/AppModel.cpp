#include "App/AppModel.hpp"

#include "App/ChannelList.hpp"
#include "Modules/Shared/WhenDone.hpp"

#include <QPromise>

#include <memory>

AppModel::AppModel(QObject* parent)
    : QObject(parent), settings(new Preferences(this)), junkModel(new SystemJunkModel(*settings, this)),
      lens(new SpaceLensModel(*settings, this)), largeModel(new LargeFilesModel(*settings, this)),
      appsModel(new UninstallerModel(*settings, this)), leftoversModel(new LeftoversModel(*settings, this)),
      trashModel(new TrashModel(*settings, this)), updatesModel(new UpdatesModel(*settings, this)),
      channelList(new ChannelList(*this, this)), homeModel(new HomeModel(*this, this)) {
    for (ModulePhaseModel* channel :
         std::initializer_list<ModulePhaseModel*>{junkModel, largeModel, appsModel, leftoversModel})
        channel->actions()->setEmptyTrash([this] { open(Channel::trash); });
}

void AppModel::open(Channel channel) {
    if (channel == currentChannel)
        return;
    currentChannel = channel;
    emit selectionChanged();
}

void AppModel::openRaw(int raw) {
    if (auto channel = Channels::fromRaw(raw))
        open(*channel);
}

QFuture<void> AppModel::smartScan() {
    if (isSmartScanning())
        return QtFuture::makeReadyFuture();
    junkReported = leftoversReported = false;
    setSmartScanStartedAt(QDateTime::currentDateTime());
    auto finished = std::make_shared<QPromise<void>>();
    finished->start();
    // Both start before either is awaited, so their engine work overlaps.
    QFuture<void> junkScan = junkModel->scan();
    QFuture<void> leftoversScan = leftoversModel->scan();
    whenDone(this, junkScan, [this, leftoversScan, finished] {
        junkReported = true;
        emit smartScanChanged();
        whenDone(this, leftoversScan, [this, finished] {
            leftoversReported = true;
            setSmartScanStartedAt({});
            setSmartScanFinishedAt(QDateTime::currentDateTime());
            finished->finish();
        });
    });
    return finished->future();
}

bool AppModel::smartScanReported(Channel channel) const {
    return channel == Channel::junk ? junkReported : channel == Channel::leftovers ? leftoversReported : false;
}

void AppModel::setSmartScanStartedAt(const QDateTime& value) {
    if (value == scanStarted)
        return;
    const bool wasScanning = isSmartScanning();
    scanStarted = value;
    emit smartScanChanged();
    if (wasScanning != isSmartScanning())
        emit smartScanningChanged();
}

void AppModel::setSmartScanFinishedAt(const QDateTime& value) {
    if (value == scanFinished)
        return;
    scanFinished = value;
    emit smartScanChanged();
}

void AppModel::setTrayAvailable(bool available) {
    if (available == hasTray)
        return;
    hasTray = available;
    emit trayAvailableChanged();
}
