#include "App/AppModel.hpp"

#include <QVariantMap>

AppModel::AppModel(QObject* parent)
    : QObject(parent), junkModel(new SystemJunkModel(this)), lens(new SpaceLensModel(this)) {
    junkModel->actions()->setEmptyTrash([this] { open(Channel::trash); });
}

void AppModel::open(Channel channel) {
    if (channel == current)
        return;
    current = channel;
    emit selectionChanged();
}

void AppModel::openRaw(int raw) {
    if (auto channel = Channels::fromRaw(raw))
        open(*channel);
}

QVariantList AppModel::channels() const {
    QVariantList list;
    for (Channel channel : Channels::allCases) {
        list.append(QVariantMap{
            {"raw", Channels::rawValue(channel)},
            {"title", Channels::title(channel)},
            {"shortLabel", Channels::shortLabel(channel)},
            {"keyEquivalent", Channels::keyEquivalent(channel)},
            {"accessibilityName", Channels::accessibilityName(channel)},
        });
    }
    return list;
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
