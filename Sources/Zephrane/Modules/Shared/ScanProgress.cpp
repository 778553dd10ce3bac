#include "Modules/Shared/ScanProgress.hpp"

#include <algorithm>

int ScanProgress::doneCount() const {
    return static_cast<int>(
        std::ranges::count_if(steps, [](const ScanStep& step) { return step.state.isDone(); }));
}
