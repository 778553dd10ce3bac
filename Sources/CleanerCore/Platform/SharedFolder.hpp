#pragma once

#include "CleanerCore/Platform/FileDescriptor.hpp"

#include <atomic>
#include <cstddef>

namespace CleanerCore::Platform {

// The descriptor of a folder whose subfolders are walked in tasks of their own: each task opens its
// subfolder by name from it and then says so, and the last one to do so closes it. So a fanned-out
// walk never reaches a folder by a path, and a folder's descriptor stays open only until all its
// subfolders have been opened.
class SharedFolder {
public:
    SharedFolder(FileDescriptor folder, std::size_t subfolders) : folder(std::move(folder)), waiting(subfolders) {}

    int fd() const { return folder.get(); }

    // One subfolder has been opened (or will not be): the descriptor closes with the last.
    void opened() {
        if (waiting.fetch_sub(1, std::memory_order_acq_rel) == 1)
            folder.reset();
    }

private:
    FileDescriptor folder;
    std::atomic<std::size_t> waiting;
};

} // namespace CleanerCore::Platform
