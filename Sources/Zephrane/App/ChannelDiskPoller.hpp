#pragma once

#include "App/ChannelDiskReading.hpp"

#include <QObject>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <functional>

// Reads the root volume every 30 seconds while the view that holds it lives; no reading when the
// volume cannot be read.
class ChannelDiskPoller : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool hasReading READ hasReading NOTIFY readingChanged)
    Q_PROPERTY(qint64 free READ freeBytes NOTIFY readingChanged)
    Q_PROPERTY(qint64 total READ totalBytes NOTIFY readingChanged)
    Q_PROPERTY(double usedFraction READ usedFraction NOTIFY readingChanged)

public:
    using Reader = std::function<std::optional<ChannelDiskReading>()>;
    static constexpr int intervalMilliseconds = 30'000;

    explicit ChannelDiskPoller(QObject* parent = nullptr);
    // Tests replace the volume reader; the default reads "/".
    void setReader(Reader replacement);

    std::optional<ChannelDiskReading> reading() const { return current; }
    bool hasReading() const { return current.has_value(); }
    qint64 freeBytes() const { return current ? current->free : 0; }
    qint64 totalBytes() const { return current ? current->total : 0; }
    double usedFraction() const;

    Q_INVOKABLE void poll();

signals:
    void readingChanged();

private:
    Reader reader;
    QTimer timer;
    std::optional<ChannelDiskReading> current;
};
