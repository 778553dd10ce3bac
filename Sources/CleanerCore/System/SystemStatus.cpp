#include "CleanerCore/System/SystemStatus.hpp"

namespace CleanerCore {

SystemStatus systemStatus(const SystemSnapshot& snapshot) {
    return snapshot.diskTotal != 0 && snapshot.diskUsedFraction() >= 0.9 ? SystemStatus::diskAlmostFull
                                                                         : SystemStatus::ok;
}

} // namespace CleanerCore
