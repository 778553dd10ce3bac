#include "App/FullDiskAccess.hpp"
#include "App/FullDiskAccessMonitor.hpp"
#include "FaultySystemCalls.hpp"
#include "Support/QmlTestSupport.hpp"
#include "TempTree.hpp"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

using CleanerCore::Platform::ScopedSystemCalls;

QString path(const TestSupport::TempTree& tree, const char* relative) {
    return QString::fromStdString(tree.path(relative).string());
}

// Counts the opens of one path, and fails them with `error` when it is set.
struct OpenWatch {
    std::string target;
    int error = 0;
    int seen = 0;
    int operator()(const char* name) {
        if (target == name) {
            ++seen;
            return error;
        }
        return 0;
    }
};

} // namespace

TEST(DiskAccessProbe, TheFirstProbeThatExistsAloneDecides) {
    TestSupport::TempTree tree;
    EXPECT_FALSE(FullDiskAccess::isGranted({path(tree, "missing.db"), path(tree, "Library/Safari")}));
    EXPECT_FALSE(FullDiskAccess::isGranted({}));
    tree.file("TCC.db", 10);
    tree.folder("Safari");
    const QStringList probes{path(tree, "gone"), path(tree, "TCC.db"), path(tree, "Safari")};

    TestSupport::FaultySystemCalls calls;
    OpenWatch database{tree.path("TCC.db").string(), EACCES};
    OpenWatch safari{tree.path("Safari").string()};
    calls.openFault = [&](const char* name) { return database(name) + safari(name); };
    {
        ScopedSystemCalls installed(calls);
        EXPECT_FALSE(FullDiskAccess::isGranted(probes)) << "the database can't be opened";
    }
    EXPECT_EQ(database.seen, 1);
    EXPECT_EQ(safari.seen, 0) << "a readable folder after it must not be tried";

    database.error = 0;
    {
        ScopedSystemCalls installed(calls);
        EXPECT_TRUE(FullDiskAccess::isGranted(probes));
    }
    EXPECT_EQ(calls.openNow, 0) << "the probe is closed again";
    EXPECT_EQ(safari.seen, 0);
}

TEST(DiskAccessProbe, AFolderMustListNotMerelyOpen) {
    TestSupport::TempTree tree;
    tree.folder("Mail");
    const QStringList probes{path(tree, "Mail")};
    EXPECT_TRUE(FullDiskAccess::isGranted(probes));

    TestSupport::FaultySystemCalls calls;
    calls.listFault = [] { return EPERM; };
    ScopedSystemCalls installed(calls);
    EXPECT_FALSE(FullDiskAccess::isGranted(probes));
    EXPECT_EQ(calls.openNow, 0);
}

namespace {

class Monitor : public ::testing::Test {
protected:
    void SetUp() override {
        monitor.setProbes({path(tree, "Library/Mail")});
        monitor.resetForTesting();
    }
    void TearDown() override {
        monitor.setProbes(FullDiskAccess::probes());
        monitor.resetForTesting();
        monitor.refresh();
    }
    TestSupport::TempTree tree;
    FullDiskAccessMonitor& monitor = FullDiskAccessMonitor::shared();
    QmlTestSupport::AnnouncementLog log;
    QStringList& announced = log.said;
};

} // namespace

TEST_F(Monitor, AnnouncesTheGrantOnceTheCheckKeyWhenStillMissingAndNotifiesOnlyOnChange) {
    QSignalSpy changed(&monitor, &FullDiskAccessMonitor::isGrantedChanged);
    EXPECT_FALSE(monitor.refresh());
    EXPECT_EQ(announced.count(), 0);
    EXPECT_FALSE(monitor.check());
    EXPECT_EQ(changed.count(), 0);

    tree.folder("Library/Mail");
    EXPECT_TRUE(monitor.refresh());
    EXPECT_TRUE(monitor.isGranted());
    EXPECT_TRUE(monitor.refresh());
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(announced, (QStringList{qtTrId("fda.announce.stillOff"), qtTrId("fda.announce.granted")}));

    std::filesystem::remove(tree.path("Library/Mail"));
    EXPECT_FALSE(monitor.refresh());
    EXPECT_EQ(changed.count(), 2);
    EXPECT_EQ(announced.count(), 2) << "losing the grant is not announced";
}

TEST_F(Monitor, PollsWhileAViewWatchesAndStopsAtTheGrantOrTheLastViewGone) {
    monitor.watch();
    monitor.watch();
    EXPECT_TRUE(monitor.watching());
    monitor.stopWatching();
    EXPECT_TRUE(monitor.watching()) << "one view still shows the grant";
    monitor.stopWatching();
    EXPECT_FALSE(monitor.watching());

    monitor.watch();
    tree.folder("Library/Mail");
    QSignalSpy granted(&monitor, &FullDiskAccessMonitor::isGrantedChanged);
    EXPECT_TRUE(granted.wait(FullDiskAccessMonitor::intervalMilliseconds * 3));
    EXPECT_TRUE(monitor.isGranted());
    EXPECT_FALSE(monitor.watching());
    monitor.stopWatching();

    monitor.watch();
    EXPECT_FALSE(monitor.watching()) << "already granted: nothing to wait for";
    monitor.stopWatching();
}
