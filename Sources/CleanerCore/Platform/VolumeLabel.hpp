#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The labels people give their file systems, as udev publishes them.
namespace CleanerCore::Platform::VolumeLabel {

// The label of the file system on the block device `device` (makedev(major, minor), as the mount
// table gives it), from the links in `labelsFolder`; nothing when it has none.
std::optional<std::string> of(std::uint64_t device, const std::string& labelsFolder = "/dev/disk/by-label");

// A link's name with udev's "\xHH" escapes undone ("My\x20Disk" is "My Disk").
std::string unescaped(std::string_view name);

} // namespace CleanerCore::Platform::VolumeLabel
