#pragma once

#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "CleanerCore/Platform/MountTable.hpp"
#include "CleanerCore/Platform/RemovalResult.hpp"

#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <sys/types.h>
#include <vector>

namespace CleanerCore::Platform {

// Moves items into the freedesktop.org trash of their own volume: the home trash for the volume of
// the data home, otherwise $topdir/.Trash/$uid (when .Trash is a sticky folder, not a link) or
// $topdir/.Trash-$uid. Nothing is ever copied across volumes. The info file is written and flushed
// before the item moves, so a crash never leaves an item in files/ that has no info.
// One object serves a run of items and keeps the trash folders it has opened.
class FreedesktopTrash {
public:
    explicit FreedesktopTrash(std::string dataHome, std::vector<MountPoint> mounts = MountTable::current());

    // $XDG_DATA_HOME when it is set to an absolute path, else home + "/.local/share".
    static std::string dataHomeFor(const std::string& home);

    // Moves the item at the absolute `path` into the trash. ENOENT stands only for an item that is
    // not there; a trash folder that can't be made or used is named in the result, and so is an
    // item that is a mount point (never moved).
    RemovalResult trash(const std::string& path);
    // The same for many items, faster: the info files of all of them are written and flushed in
    // one go before any item moves. One result per path, in order.
    std::vector<RemovalResult> trashAll(const std::vector<std::string>& paths);

    // The text of an info file.
    static std::string infoText(const std::string& originalPath, std::chrono::system_clock::time_point when);

private:
    struct Bin {
        FileDescriptor files, info;
        std::string topDirectory; // empty for the home trash, whose info holds absolute paths
        RemovalResult problem;    // why this volume's trash can't be used
    };

    struct Pending {
        std::size_t index = 0;
        std::string path, name, candidate; // candidate: its name in files/, with info/candidate.trashinfo
        int attempt = 0;
        Bin* bin = nullptr;
        std::shared_ptr<FileDescriptor> parent;
        FileDescriptor info;
    };

    Bin& homeBin();
    Bin& volumeBin(dev_t device, const std::string& path);
    std::shared_ptr<FileDescriptor> openParent(const std::string& parent);
    RemovalResult prepare(Pending& item);
    int writeInfo(Pending& item, int firstAttempt);
    void makeDurable(std::vector<Pending>& pending, std::vector<RemovalResult>& results);
    int place(Pending& item);
    void dropInfo(Pending& item);

    std::string dataHome;
    std::vector<MountPoint> mounts;
    std::optional<Bin> home;
    std::optional<dev_t> homeDevice;
    std::map<dev_t, Bin> volumes;
    std::string cachedParentPath;
    std::shared_ptr<FileDescriptor> cachedParent;
    std::mt19937 random;
};

} // namespace CleanerCore::Platform
