#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace CleanerCore::Platform {

// The whole of a small file (a property list, a /proc entry, a desktop entry), read through the
// system-call seam without following a final link. Nothing when it can't be opened or read;
// reading stops once `limit` bytes are in, so a huge or endless file costs no more than that.
std::optional<std::string> readSmallFile(const std::string& path, std::size_t limit = std::size_t{1} << 20);

} // namespace CleanerCore::Platform
