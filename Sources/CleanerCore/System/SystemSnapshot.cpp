#include "CleanerCore/System/SystemSnapshot.hpp"

namespace CleanerCore {

double SystemSnapshot::memoryFraction() const {
    return memoryTotal == 0 ? 0 : static_cast<double>(memoryUsed) / static_cast<double>(memoryTotal);
}

double SystemSnapshot::diskUsedFraction() const {
    return diskTotal == 0 ? 0 : 1 - static_cast<double>(diskFree) / static_cast<double>(diskTotal);
}

} // namespace CleanerCore
