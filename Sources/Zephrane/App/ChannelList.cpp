#include "App/ChannelList.hpp"

#include "App/Channel.hpp"
#include "App/ChannelInfo.hpp"

ChannelList::ChannelList(const AppModel& model, QObject* parent) : QAbstractListModel(parent), app(model) {}

int ChannelList::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(Channels::allCases.size());
}

QVariant ChannelList::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Channel channel = Channels::allCases[static_cast<std::size_t>(index.row())];
    switch (role) {
    case InfoRole:
        return QVariant::fromValue(ChannelInfo::of(channel, app));
    case RawRole:
        return Channels::rawValue(channel);
    default:
        return {};
    }
}

QHash<int, QByteArray> ChannelList::roleNames() const {
    return {{InfoRole, "info"}, {RawRole, "raw"}};
}
