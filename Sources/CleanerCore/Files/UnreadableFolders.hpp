#pragma once

#include <atomic>
#include <cstdint>

namespace CleanerCore {

// How many folders one walk met but could not open or read to the end, so that a total known to be
// short can say so. Shared by the walk's tasks without a lock. A folder that vanished, or that was
// swapped for a link or a file before it was opened, is not counted: there was nothing to read.
class UnreadableFolders {
public:
    // Counts a folder whose open or listing failed with `error`, unless the error says it is gone.
    void failed(int error);
    void add(std::int64_t folders = 1) { count.fetch_add(folders, std::memory_order_relaxed); }
    std::int64_t total() const { return count.load(std::memory_order_relaxed); }

    // Counts into `to` when there is one.
    static void failed(UnreadableFolders* to, int error) {
        if (to)
            to->failed(error);
    }

private:
    std::atomic<std::int64_t> count{0};
};

} // namespace CleanerCore
