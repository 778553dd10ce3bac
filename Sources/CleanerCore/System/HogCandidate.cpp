#include "CleanerCore/System/HogCandidate.hpp"

namespace CleanerCore {

HogCandidate HogCandidate::fromProcess(const Platform::RunningApplication& process) {
    return {process.pid, process.name, process.bundleIdentifier, process.bundlePath, process.bundlePath.has_value()};
}

} // namespace CleanerCore
