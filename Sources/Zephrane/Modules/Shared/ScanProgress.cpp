#include "Modules/Shared/ScanProgress.hpp"

#include "Modules/Shared/PhaseFormat.hpp"

#include <algorithm>

int ScanProgress::doneCount() const {
    return static_cast<int>(
        std::ranges::count_if(steps, [](const ScanStep& step) { return step.state.isDone(); }));
}

QVariantList ScanProgress::stepValues() const {
    QVariantList values;
    for (const ScanStep& step : steps)
        values.append(QVariant::fromValue(step));
    return values;
}

QString ScanProgress::itemCountText() const {
    return PhaseFormat::count(itemCount);
}

QString ScanProgress::elapsedText() const {
    const qint64 seconds = startedAt.isValid() ? startedAt.secsTo(QDateTime::currentDateTime()) : 0;
    return PhaseFormat::clock(std::chrono::seconds(seconds));
}
