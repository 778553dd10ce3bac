#pragma once

namespace CleanerCore::Platform {

// Removes the entry `name` of the open folder `parentFd` and, if it is a folder, everything below
// it, through folder descriptors: no link is ever followed at any depth, so a folder swapped for a
// link while the removal runs loses only the link, never what it points to. Mount points inside the
// tree are not entered. Deep trees use an explicit stack and a bounded number of open descriptors.
//
// Returns 0 when the entry is gone, ENOENT when it was not there to begin with, or the first errno
// that kept something in place (the rest is still removed as far as possible); ELOOP when the
// tree changed in a way that made going on unsafe.
int removeTree(int parentFd, const char* name);

} // namespace CleanerCore::Platform
