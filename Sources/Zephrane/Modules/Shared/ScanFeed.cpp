#include "Modules/Shared/ScanFeed.hpp"

void ScanFeed::reading(const QString& shortPath) {
    QMutexLocker lock(&mutex);
    path = shortPath;
}

void ScanFeed::found(int count) {
    QMutexLocker lock(&mutex);
    foundSoFar = count;
}

void ScanFeed::enter(int tile) {
    QMutexLocker lock(&mutex);
    enteredTile = tile;
}

void ScanFeed::add(int tile, std::int64_t bytes) {
    QMutexLocker lock(&mutex);
    bytesByTile[tile] += bytes;
}

ScanFeed::Snapshot ScanFeed::take() {
    QMutexLocker lock(&mutex);
    Snapshot snapshot{std::move(path), foundSoFar, enteredTile, bytesByTile};
    path.reset();
    return snapshot;
}

void ScanFeed::reset() {
    QMutexLocker lock(&mutex);
    path.reset();
    foundSoFar = 0;
    enteredTile = -1;
    bytesByTile.clear();
}
