#pragma once

#include "CleanerCore/Platform/RemovalResult.hpp"

#include <string_view>

namespace CleanerCore::Platform {

// Removes the entry `name` of the open folder `parentFd` and, if it is a folder, everything below
// it, through folder descriptors: no link is ever followed at any depth, so a folder swapped for a
// link while the removal runs loses only the link, never what it points to. A mount point is never
// entered nor removed, wherever it lies (the item itself included): it stays with the folders above
// it, and the result names it. Deep trees use an explicit stack and a bounded number of open
// descriptors. `path` is the entry's full path, for naming what was left.
//
// The result holds ENOENT when the entry was not there to begin with, or the first problem that
// kept something in place (the rest is still removed as far as possible); ELOOP when the tree
// changed in a way that made going on unsafe.
RemovalResult removeTree(int parentFd, const char* name, std::string_view path);

} // namespace CleanerCore::Platform
