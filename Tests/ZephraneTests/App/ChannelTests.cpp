#include "App/AppModel.hpp"
#include "App/Channel.hpp"
#include "App/ChannelTable.hpp"

#include <QSignalSpy>

#include <gtest/gtest.h>

TEST(Channel, EachRowNamesItsOwnKeysAndThereIsNoEighth) {
    const char* names[] = {"home", "junk", "lens", "large", "apps", "leftovers", "trash", "updates"};
    for (Channel channel : Channels::allCases) {
        const ChannelRow& row = ChannelTable::row(channel);
        const char* name = names[Channels::rawValue(channel)];
        EXPECT_EQ(QString(row.shortKey), QString("channel.%1.short").arg(name));
        EXPECT_EQ(QString(row.titleKey), QString("channel.%1.title").arg(name));
    }
    EXPECT_EQ(Channels::fromRaw(8), std::nullopt);
    EXPECT_EQ(Channels::fromRaw(-1), std::nullopt);
}

TEST(AppModel, StartsHomeAndNotifiesOnlyWhenTheChannelChanges) {
    AppModel model;
    EXPECT_EQ(model.selection(), Channel::home);
    QSignalSpy spy(&model, &AppModel::selectionChanged);
    model.open(Channel::home);
    EXPECT_EQ(spy.count(), 0);
    model.open(Channel::trash);
    model.open(Channel::trash);
    EXPECT_EQ(spy.count(), 1);
    EXPECT_EQ(model.selection(), Channel::trash);
    model.openRaw(8); // no such channel
    EXPECT_EQ(model.selection(), Channel::trash);
    EXPECT_EQ(spy.count(), 1);
}
