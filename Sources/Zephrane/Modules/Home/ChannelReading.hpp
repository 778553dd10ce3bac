#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

// What a channel's card on Home says about it.
class ChannelReading {
    Q_GADGET
    QML_VALUE_TYPE(channelReading)
    Q_PROPERTY(int channel MEMBER channel)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(bool lit MEMBER lit)

public:
    int channel = 0; // the channel's raw value
    QString title; // the channel's short name, for the card
    QString text;
    bool lit = false;  // it found something worth a look

    bool operator==(const ChannelReading&) const = default;
};
