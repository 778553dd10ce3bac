#include "Modules/Shared/ScanFeed.hpp"

void ScanFeed::reading(const QString& shortPath) {
    QMutexLocker lock(&mutex);
    path = shortPath;
}

void ScanFeed::found(int count) {
    QMutexLocker lock(&mutex);
    foundSoFar = count;
}

ScanFeed::Snapshot ScanFeed::take() {
    QMutexLocker lock(&mutex);
    Snapshot snapshot{std::move(path), foundSoFar};
    path.reset();
    return snapshot;
}

void ScanFeed::reset() {
    QMutexLocker lock(&mutex);
    path.reset();
    foundSoFar = 0;
}
