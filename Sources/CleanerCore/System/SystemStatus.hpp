#pragma once

#include "CleanerCore/System/SystemSnapshot.hpp"

namespace CleanerCore {

// How the machine is doing at a glance, as the tray's status light shows it.
enum class SystemStatus { ok, diskAlmostFull };

// diskAlmostFull from 90 percent of the disk used, exactly 90 included; ok without a disk total.
SystemStatus systemStatus(const SystemSnapshot& snapshot);

} // namespace CleanerCore
