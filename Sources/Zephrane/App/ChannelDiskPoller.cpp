#include "App/ChannelDiskPoller.hpp"

#include "CleanerCore/Platform/VolumeCapacity.hpp"

#include <algorithm>

ChannelDiskPoller::ChannelDiskPoller(QObject* parent)
    : QObject(parent), reader([]() -> std::optional<ChannelDiskReading> {
          if (auto capacity = CleanerCore::Platform::readVolumeCapacity("/"))
              return ChannelDiskReading{capacity->available, capacity->total};
          return std::nullopt;
      }) {
    timer.setInterval(intervalMilliseconds);
    connect(&timer, &QTimer::timeout, this, &ChannelDiskPoller::poll);
    timer.start();
    // The first reading comes as soon as the event loop runs, not inside the constructor.
    QTimer::singleShot(0, this, &ChannelDiskPoller::poll);
}

void ChannelDiskPoller::setReader(Reader replacement) { reader = std::move(replacement); }

double ChannelDiskPoller::usedFraction() const {
    if (!current || current->total <= 0)
        return 0;
    return std::clamp(double(current->total - current->free) / double(current->total), 0.0, 1.0);
}

void ChannelDiskPoller::poll() {
    auto next = reader ? reader() : std::nullopt;
    if (next == current)
        return;
    current = next;
    emit readingChanged();
}
