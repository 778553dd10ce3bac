#include "App/AppModel.hpp"

#include "App/ChannelList.hpp"

AppModel::AppModel(QObject* parent)
    : QObject(parent), settings(new Preferences(this)), junkModel(new SystemJunkModel(*settings, this)),
      lens(new SpaceLensModel(*settings, this)), largeModel(new LargeFilesModel(*settings, this)),
      appsModel(new UninstallerModel(*settings, this)), leftoversModel(new LeftoversModel(*settings, this)),
      trashModel(new TrashModel(*settings, this)), updatesModel(new UpdatesModel(*settings, this)),
      channelList(new ChannelList(*this, this)) {
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

void AppModel::setSmartScanStartedAt(const QDateTime& value) {
    if (value == scanStarted)
        return;
    scanStarted = value;
    emit smartScanChanged();
}

void AppModel::setSmartScanFinishedAt(const QDateTime& value) {
    if (value == scanFinished)
        return;
    scanFinished = value;
    emit smartScanChanged();
}
