#pragma once

#include "CleanerCore/Files/URL.hpp"
#include "CleanerCore/Files/UnreadableFolders.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"

#include <cstdint>
#include <stop_token>
#include <string>
#include <string_view>

// Allocated bytes of folder trees, from the bulk listing. Files count their allocated blocks once
// per name (hard links included), links and special files count nothing, names starting with "._"
// are passed over, and a folder that can't be opened or read counts what was seen of it, without
// stopping its siblings (and is counted in `unreadable` when one is given). Folders' own blocks are
// not counted. Below the top, every folder is opened by its name relative to its parent's open
// descriptor, never through a link and never by a longer path, so a folder swapped for a link
// while the walk runs can't lead it out of the tree.
namespace CleanerCore::DirectoryWalker {

// Sequential total of everything below the open folder `directoryFd`, which stays open. Descends
// with an explicit stack, so no depth can exhaust the calling thread's stack, and keeps a bounded
// number of descriptors open however deep the tree goes.
std::int64_t allocatedSize(int directoryFd, UnreadableFolders* unreadable = nullptr);

// The total of the folder at `path`, 0 when it can't be opened. With `fanOut`, each subfolder is
// measured in a task of its own down to depth 8; folders under "Library/Containers" always go the
// sequential route. Cancellation is looked at on entry only: walks already begun run to their end,
// and the caller ignores the total.
std::int64_t allocatedSize(const std::string& path, bool fanOut, int depth, std::stop_token stop = {},
                           UnreadableFolders* unreadable = nullptr);

// The same for the folder already open as `folder`, found at `path`; `folder` is closed as soon as
// every subfolder has been opened from it.
std::int64_t allocatedSize(Platform::FileDescriptor folder, std::string_view path, bool fanOut, int depth,
                           std::stop_token stop = {}, UnreadableFolders* unreadable = nullptr);

// Whether `path`, less one trailing "/", is "…/Library/Containers" or lies below one.
bool isInContainers(std::string_view path);

// Whether the folder `folderNamed` at `at` is a package: the bundle bit says so at once;
// otherwise its extension must be a package type (answers kept in one process-wide, locked
// table) and the folder itself is asked last.
bool isPackage(std::string_view folderNamed, bool hasBundleBit, const URL& at);

// The name half of that test, for a walk that already knows the entry is a folder.
bool hasPackageExtension(std::string_view name);

} // namespace CleanerCore::DirectoryWalker
