#include "CleanerCore/Files/DirectoryWalker.hpp"
#include "CleanerCore/Files/FileSize.hpp"
#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "FaultySystemCalls.hpp"
#include "TempTree.hpp"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <mutex>
#include <pthread.h>
#include <set>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

using namespace CleanerCore;
using Platform::FileDescriptor;
using Platform::ScopedSystemCalls;
using TestSupport::FaultySystemCalls;
using TestSupport::TempTree;
namespace fs = std::filesystem;

namespace {

URL url(const fs::path& path) {
    return URL::file(path.string());
}

std::int64_t blocksOf(const fs::path& path) {
    struct stat info {};
    EXPECT_EQ(::lstat(path.c_str(), &info), 0) << path;
    return static_cast<std::int64_t>(info.st_blocks) * 512;
}

// A chain of folders "d/d/d/..." `depth` levels deep below `root`, far past PATH_MAX, each level
// holding one file "f" of one block. Built and removed through descriptors only.
class DeepChain {
public:
    DeepChain(const fs::path& root, int depth) : top(root / "d"), levels(depth) {
        int fd = ::open(root.c_str(), O_RDONLY | O_DIRECTORY);
        for (int level = 0; level < depth && fd >= 0; ++level) {
            EXPECT_EQ(::mkdirat(fd, "d", 0755), 0);
            const int child = ::openat(fd, "d", O_RDONLY | O_DIRECTORY);
            ::close(fd);
            fd = child;
            const int file = ::openat(fd, "f", O_WRONLY | O_CREAT, 0644);
            EXPECT_EQ(::write(file, "x", 1), 1);
            ::close(file);
        }
        ::close(fd);
    }
    ~DeepChain() { // from the bottom up, climbing through ".."
        int fd = ::open(top.c_str(), O_RDONLY | O_DIRECTORY);
        for (int level = 1; level < levels; ++level) {
            const int child = ::openat(fd, "d", O_RDONLY | O_DIRECTORY);
            ::close(fd);
            fd = child;
        }
        for (int level = 0; level < levels && fd >= 0; ++level) {
            ::unlinkat(fd, "f", 0);
            const int parent = ::openat(fd, "..", O_RDONLY | O_DIRECTORY);
            ::close(fd);
            fd = parent;
            ::unlinkat(fd, "d", AT_REMOVEDIR);
        }
        ::close(fd);
    }
    std::int64_t total() const { return levels * blocksOf(top / "f"); }

    const fs::path top;
    const int levels;
};

// Runs `work` on a thread with a deliberately small stack.
template <typename Work> void onSmallStack(Work work) {
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes, 256 * 1024);
    pthread_t thread;
    auto trampoline = [](void* argument) -> void* {
        (*static_cast<Work*>(argument))();
        return nullptr;
    };
    ASSERT_EQ(pthread_create(&thread, &attributes, trampoline, &work), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
}

} // namespace

TEST(DirectoryWalker, WalksThousandsOfLevelsOnASmallStackWithFewDescriptors) {
    TempTree tree;
    const DeepChain chain(tree.root(), 3000);
    FaultySystemCalls calls;
    ScopedSystemCalls scope(calls);
    std::int64_t sequential = -1, parallel = -1;
    onSmallStack([&] {
        FileDescriptor fd(Platform::openDirectory(AT_FDCWD, tree.root().c_str()));
        sequential = DirectoryWalker::allocatedSize(fd.get());
    });
    EXPECT_EQ(sequential, chain.total());
    EXPECT_LT(calls.openPeak, 100) << "deep levels give their descriptors back";
    onSmallStack([&] { parallel = FileSize::parallelAllocatedSize(url(tree.root())); });
    EXPECT_EQ(parallel, chain.total());
    EXPECT_EQ(calls.openNow, 0);
}

TEST(DirectoryWalker, ADeepFolderThatCannotBeReopenedLosesOnlyItsOwnRest) {
    TempTree tree;
    const DeepChain chain(tree.root(), 200);
    // A second subfolder deep down: walked before or after "d", depending on the listing order.
    fs::path deep = chain.top;
    for (int level = 1; level < 150; ++level)
        deep /= "d";
    tree.file(fs::relative(deep / "e" / "g", tree.root()).string(), 10);
    const std::int64_t whole = chain.total() + blocksOf(deep / "e" / "g");

    FaultySystemCalls calls;
    calls.openFault = [](const char* name) { return std::string_view(name) == ".." ? EACCES : 0; };
    ScopedSystemCalls scope(calls);
    FileDescriptor fd(Platform::openDirectory(AT_FDCWD, tree.root().c_str()));
    const std::int64_t total = DirectoryWalker::allocatedSize(fd.get());
    // Below the first levels, a folder is left closed while its subfolders are walked. Here it can't
    // be reopened, so it loses the subfolders still to come: the rest of the chain when "e" is
    // listed first, "e" otherwise. Nothing above it is lost.
    const std::int64_t block = blocksOf(chain.top / "f");
    bool eFirst = false;
    for (const auto& entry : fs::directory_iterator(deep)) // the order the kernel lists them in
        if (entry.path().filename() == "e" || entry.path().filename() == "d") {
            eFirst = entry.path().filename() == "e";
            break;
        }
    EXPECT_EQ(total, eFirst ? 150 * block + blocksOf(deep / "e" / "g") : chain.total());
    EXPECT_LT(total, whole);
    EXPECT_EQ(calls.openNow, 1) << "only the caller's descriptor is left open";
}

TEST(DirectoryWalker, FansOutToDepthEightExceptUnderContainers) {
    TempTree tree;
    std::string deep = "x";
    for (int level = 0; level < 12; ++level)
        deep += "/x";
    tree.file(deep + "/f", 10);
    tree.file("home/Library/Containers/app/a/b/f", 10);
    tree.file("home/Library/Containers/app/a/c/f", 10);

    FaultySystemCalls calls;
    std::mutex lock;
    std::vector<std::string> opened;
    calls.openFault = [&](const char* name) {
        const std::lock_guard guard(lock);
        opened.emplace_back(name);
        return 0;
    };
    ScopedSystemCalls scope(calls);
    const auto byPath = [&] {
        return std::count_if(opened.begin(), opened.end(),
                             [](const std::string& n) { return n.front() == '/'; });
    };

    EXPECT_GT(DirectoryWalker::allocatedSize(tree.path("x"), true, 0), 0);
    EXPECT_EQ(byPath(), 9) << "the folder itself and eight levels below it by path, the rest by name";
    EXPECT_EQ(opened.size(), 13u);

    for (const char* top :
         {"home/Library/Containers", "home/Library/Containers/", "home/Library/Containers/app"}) {
        opened.clear();
        EXPECT_EQ(DirectoryWalker::allocatedSize(tree.path(top).string(), true, 0),
                  2 * blocksOf(tree.path(deep + "/f")));
        EXPECT_EQ(byPath(), 1) << top;
    }
    EXPECT_TRUE(DirectoryWalker::isInContainers("/Users/u/Library/Containers/"));
    EXPECT_FALSE(DirectoryWalker::isInContainers("/Users/u/Library/ContainersOld"));

    opened.clear();
    DirectoryWalker::allocatedSize(tree.path("x"), false, 0);
    EXPECT_EQ(byPath(), 1) << "no fan-out asked";
    opened.clear();
    DirectoryWalker::allocatedSize(tree.path("x"), true, 7);
    EXPECT_EQ(byPath(), 2) << "one level left before depth 8";
}

TEST(DirectoryWalker, CancellationStopsTheFanOutButNotTheWalksBegun) {
    TempTree tree;
    for (int i = 0; i < 6; ++i)
        for (int j = 0; j < 4; ++j)
            tree.file("t/" + std::to_string(i) + "/" + std::to_string(j) + "/f", 10);
    const std::int64_t whole = FileSize::referenceAllocatedSize(url(tree.path("t")));

    std::stop_source cancelled;
    cancelled.request_stop();
    FaultySystemCalls calls;
    std::atomic<int> byPath{0};
    std::stop_source source;
    calls.openFault = [&](const char* name) {
        if (name[0] == '/' && ++byPath == 3)
            source.request_stop(); // cancel in the middle of the fan-out
        return 0;
    };
    ScopedSystemCalls scope(calls);
    EXPECT_EQ(DirectoryWalker::allocatedSize(tree.path("t"), true, 0, cancelled.get_token()), whole);
    EXPECT_EQ(byPath, 1) << "cancelled before it began: one sequential walk";

    byPath = 0;
    EXPECT_EQ(DirectoryWalker::allocatedSize(tree.path("t"), true, 0, source.get_token()), whole);
    EXPECT_GE(byPath, 3);
    EXPECT_LT(byPath, 31) << "children started after the cancellation do not fan out";
}

TEST(DirectoryWalker, PackagesAreKnownByExtensionThenAskedOfTheFolder) {
    TempTree tree;
    tree.folder("Tool.app");
    tree.folder("Shout.APP");
    tree.folder("notes.txt");
    tree.file("fake.app", 1);
    tree.folder("plain");
    const auto isPackage = [&](const std::string& name, bool bundleBit = false) {
        return DirectoryWalker::isPackage(name, bundleBit, url(tree.path(name)));
    };
    EXPECT_TRUE(isPackage("Tool.app"));
    EXPECT_TRUE(isPackage("Shout.APP"));
    EXPECT_TRUE(isPackage("plain", true)) << "the bundle bit decides at once";
    EXPECT_FALSE(isPackage("fake.app")) << "a package must be a folder";
    EXPECT_FALSE(isPackage("missing.app"));

    FaultySystemCalls calls;
    ScopedSystemCalls scope(calls);
    for (const char* name : {"notes.txt", "plain", ".app", "app.", "a.b.c.", "notes.txt"})
        EXPECT_FALSE(isPackage(name)) << name;
    EXPECT_EQ(calls.lstats, 0) << "names that can't be packages never reach the file system";

    std::vector<std::thread> threads;
    std::atomic<int> wrong{0};
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&, t] {
            for (int i = 0; i < 500; ++i) {
                const std::string name =
                    "f" + std::to_string((i * 7 + t) % 50) + (i % 2 ? ".bundle" : ".dat");
                if (DirectoryWalker::isPackage(name, false, URL::file("/nonexistent/" + name)) != false)
                    ++wrong;
            }
        });
    for (auto& thread : threads)
        thread.join();
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(calls.lstats, 1000) << "only the package-like half asks the folder";
}
