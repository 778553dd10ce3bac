#pragma once

#include "App/Channel.hpp"

#include <QMetaType>
#include <QObject>
#include <QString>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

class AppModel;

// A channel as the views see it: its keys in the interface's language, its screen and its model.
struct ChannelInfo {
    Q_GADGET
    QML_VALUE_TYPE(channelInfo)
    Q_PROPERTY(int raw MEMBER raw)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString shortLabel MEMBER shortLabel)
    Q_PROPERTY(QString keyEquivalent MEMBER keyEquivalent)
    Q_PROPERTY(QString accessibilityName MEMBER accessibilityName)
    Q_PROPERTY(QUrl screen MEMBER screen)
    Q_PROPERTY(QObject* model MEMBER model)

public:
    int raw = 0;
    QString title;
    QString shortLabel;
    QString keyEquivalent;
    QString accessibilityName;
    QUrl screen;
    QObject* model = nullptr;

    static ChannelInfo of(Channel channel, const AppModel& app);
    bool operator==(const ChannelInfo&) const = default;
};

Q_DECLARE_METATYPE(ChannelInfo)
