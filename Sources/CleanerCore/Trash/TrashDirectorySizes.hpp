#pragma once

// The "directorysizes" file of a freedesktop trash: a cache of the sizes of trashed folders, one
// "BYTES MTIME PERCENT-ENCODED-NAME" line each, that file managers read instead of walking them.
namespace CleanerCore::TrashDirectorySizes {

// Rewrites the cache in the open trash folder `trashFd` without the lines whose item is no longer
// in the open `filesFd`, replacing it in one rename. 0 when done or when there is no cache, else
// an errno (the cache is then left as it was).
int dropMissing(int trashFd, int filesFd);

} // namespace CleanerCore::TrashDirectorySizes
