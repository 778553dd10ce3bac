#include "Modules/Home/HomeDisk.hpp"

#include <QStorageInfo>

#include <algorithm>

HomeDisk HomeDisk::read(const QString& path) {
    const QStorageInfo volume(path);
    HomeDisk disk;
    disk.name = volume.name().trimmed();
    if (disk.name.isEmpty())
        disk.name = qtTrId("home.disk.name");
    if (volume.isValid() && volume.isReady()) {
        disk.total = std::max<std::int64_t>(0, volume.bytesTotal());
        disk.free = std::clamp<std::int64_t>(volume.bytesAvailable(), 0, disk.total);
    }
    return disk;
}

double HomeDisk::usedFraction() const {
    if (total <= 0)
        return 0;
    return std::clamp(static_cast<double>(total - free) / static_cast<double>(total), 0.0, 1.0);
}
