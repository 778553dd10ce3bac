#include "App/AppModel.hpp"

#include <QSignalSpy>

#include <gtest/gtest.h>

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
