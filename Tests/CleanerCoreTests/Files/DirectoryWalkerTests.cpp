#include "CleanerCore/Files/DirectoryWalker.hpp"
#include "CleanerCore/Files/FileSize.hpp"
#include "CleanerCore/Platform/BulkListing.hpp"
#include "CleanerCore/Platform/FileDescriptor.hpp"
#include "DeepChain.hpp"
#include "FaultySystemCalls.hpp"
#include "TempTree.hpp"

#include <gtest/gtest.h>

#include <mutex>
#include <pthread.h>

using namespace CleanerCore;
using Platform::ScopedSystemCalls;
using TestSupport::FaultySystemCalls;
namespace fs = std::filesystem;

namespace {

template <typename Work> void onSmallStack(Work work) {
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes, 256 * 1024);
    pthread_t thread;
    ASSERT_EQ(pthread_create(
                  &thread, &attributes,
                  [](void* argument) -> void* { return (*static_cast<Work*>(argument))(), nullptr; }, &work),
              0);
    pthread_join(thread, nullptr);
}

} // namespace

TEST(DirectoryWalker, WalksThousandsOfLevelsOnASmallStackWithFewDescriptors) {
    TestSupport::TempTree tree;
    const TestSupport::DeepChain chain(tree.root(), 3000);
    const std::int64_t expected = chain.total();
    FaultySystemCalls calls;
    ScopedSystemCalls scope(calls);
    std::int64_t sequential = -1, parallel = -1;
    onSmallStack([&] { sequential = FileSize::allocatedSize(URL::file(tree.root())); });
    EXPECT_EQ(sequential, expected);
    EXPECT_LT(calls.openPeak, 100) << "deep levels give their descriptors back";
    onSmallStack([&] { parallel = FileSize::parallelAllocatedSize(URL::file(tree.root())); });
    EXPECT_EQ(parallel, expected);
    EXPECT_EQ(calls.openNow, 0);
}

TEST(DirectoryWalker, EveryRouteGivesTheSameTotalContainersIncluded) {
    TestSupport::TempTree tree;
    tree.file("x/x/x/x/x/x/x/x/x/x/x/x/f", 10);
    tree.file("Library/Containers/app/a/b/f", 10);
    const std::int64_t block = TestSupport::allocatedBytes(tree.path("x/x/x/x/x/x/x/x/x/x/x/x/f").c_str());
    for (const int depth : {0, 6, 8})
        EXPECT_EQ(DirectoryWalker::allocatedSize(tree.path("x"), true, depth), block) << depth;
    EXPECT_EQ(DirectoryWalker::allocatedSize(tree.path("x"), false, 0), block);
    for (const char* top : {"Library/Containers", "Library/Containers/", "Library/Containers/app"})
        EXPECT_EQ(DirectoryWalker::allocatedSize(tree.path(top), true, 0), block) << top;
    EXPECT_TRUE(DirectoryWalker::isInContainers("/home/u/Library/Containers/"));
    EXPECT_FALSE(DirectoryWalker::isInContainers("/home/u/Library/ContainersOld"));
}

TEST(DirectoryWalker, CancellationFinishesWhatBegan) {
    TestSupport::TempTree tree;
    for (const char* name : {"a", "b", "c", "d", "e", "f"})
        tree.file(std::string("t/") + name + "/1/f", 10), tree.file(std::string("t/") + name + "/2/f", 10);
    const std::int64_t whole = FileSize::referenceAllocatedSize(URL::file(tree.path("t")));
    std::stop_source source;
    std::atomic<int> opens{0};
    FaultySystemCalls calls;
    calls.openFault = [&](const char*) {
        if (++opens == 3)
            source.request_stop();
        return 0;
    };
    ScopedSystemCalls scope(calls);
    EXPECT_EQ(DirectoryWalker::allocatedSize(tree.path("t"), true, 0, source.get_token()), whole);
    EXPECT_EQ(DirectoryWalker::allocatedSize(tree.path("t"), true, 0, source.get_token()), whole);
    EXPECT_EQ(calls.openNow, 0);
}

TEST(DirectoryWalker, PackagesAreKnownByExtensionThenAskedOfTheFolder) {
    TestSupport::TempTree tree;
    const auto isPackage = [&](const char* name, bool bundleBit = false) {
        return DirectoryWalker::isPackage(name, bundleBit, URL::file(tree.path(name)));
    };
    tree.folder("Tool.app"), tree.folder("Shout.APP"), tree.folder("plain.txt"), tree.file("fake.app");
    EXPECT_TRUE(isPackage("Tool.app") && isPackage("Shout.APP") && isPackage("plain.txt", true));
    EXPECT_FALSE(isPackage("fake.app") || isPackage("missing.app"));
    FaultySystemCalls calls;
    ScopedSystemCalls scope(calls);
    EXPECT_FALSE(isPackage("plain.txt") || isPackage("plain") || isPackage(".app") || isPackage("app."));
    EXPECT_EQ(calls.lstats, 0) << "names that can't be packages never reach the file system";
}
