#include "App/AppModel.hpp"
#include "JunkHome.hpp"
#include "Modules/Junk/SystemJunkModel.hpp"
#include "Support/QmlTestSupport.hpp"
#include "TempTree.hpp"

#include <QPointer>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <gtest/gtest.h>

#include <filesystem>

namespace fs = std::filesystem;

namespace {

using QmlTestSupport::click;
using QmlTestSupport::find;
using QmlTestSupport::homeTrash;
using QmlTestSupport::press;
using QmlTestSupport::testHome;
using QmlTestSupport::waitFor;

void removeFixture() {
    TestSupport::removeJunkHome(testHome());
    fs::remove_all(homeTrash());
}

// The whole life of the channel in the real window, photographed at each screen: idle, scanning,
// results, confirmation, success; the removed items end up in the freedesktop trash.
void runJunkChannel(const QString& language) {
    removeFixture();
    TestSupport::buildJunkHome(testHome());
    QmlTestSupport::WarningCollector warnings;
    {
        AppModel model;
        SystemJunkModel& junk = *model.junk();
        junk.setRunningBundleIDs([] { return std::set<std::string>{"com.example.app"}; });
        QQmlApplicationEngine engine;
        QQuickWindow* window = QmlTestSupport::showMainWindow(engine, model);
        ASSERT_NE(window, nullptr);
        const QString shot = QStringLiteral("junk-%1-").arg(language);

        // The automatic scan of a first visit, stopped at once, leaves the channel idle.
        junk.scanOnFirstVisit();
        junk.stop();
        waitFor([&] { return junk.phase() == ModulePhase::idle; });
        model.open(Channel::junk);
        QmlTestSupport::settle(120);
        EXPECT_EQ(junk.phase(), ModulePhase::idle) << "a stopped automatic scan is not made again";
        QmlTestSupport::saveScreenshot(*window, shot + "1-idle");

        press(window, find(window, "scanKey"));
        EXPECT_EQ(junk.phase(), ModulePhase::scanning);
        QmlTestSupport::saveScreenshot(*window, shot + "2-scanning");
        waitFor([&] { return junk.phase() == ModulePhase::ready; });

        // Trim the selection from the keyboard: open the caches, turn the developer caches off.
        QQuickItem* caches = find(window, "junkRow-user-caches");
        QQuickItem* devCaches = find(window, "junkRow-dev-caches");
        ASSERT_TRUE(caches && devCaches);
        caches->forceActiveFocus();
        QTest::keyClick(window, Qt::Key_Return);
        devCaches->forceActiveFocus();
        QTest::keyClick(window, Qt::Key_Space);
        QmlTestSupport::settle(120);
        const QPointer<QQuickItem> firstItem = QmlTestSupport::findItem(caches, "itemCheck", true);
        ASSERT_NE(firstItem, nullptr) << "Return opens the category";
        const auto& devGroup = junk.groups()[3];
        EXPECT_EQ(junk.selection()->stateOf(devGroup.items), (CleanupSelection::State{false, false}));

        // Ticking an item from the keyboard keeps the focus on it.
        firstItem->forceActiveFocus();
        const int before = junk.selection()->count();
        QTest::keyClick(window, Qt::Key_Space);
        QmlTestSupport::settle();
        EXPECT_NE(junk.selection()->count(), before);
        EXPECT_TRUE(firstItem && firstItem->hasActiveFocus()) << "the ticked item keeps the focus";
        QTest::keyClick(window, Qt::Key_Space);
        QmlTestSupport::settle();
        QmlTestSupport::saveScreenshot(*window, shot + "3-results");

        click(window, find(window, "cleanKey"), 120);
        EXPECT_EQ(junk.painelPhase(), PainelPhase::confirm);
        QmlTestSupport::saveScreenshot(*window, shot + "4-confirm");

        const std::size_t selected = junk.selectedItems().size();
        press(window, find(window, "confirmKey"));
        waitFor([&] { return junk.phase() == ModulePhase::done; });
        QmlTestSupport::saveScreenshot(*window, shot + "5-success");

        ASSERT_TRUE(junk.outcome());
        EXPECT_TRUE(junk.outcome()->failures.empty());
        EXPECT_EQ(junk.lastReport()->removed.size(), selected);
        const fs::path home = testHome(), trash = homeTrash();
        EXPECT_TRUE(fs::exists(trash / "files/com.example.tool"));
        EXPECT_TRUE(fs::exists(trash / "info/Report.PART.trashinfo"));
        EXPECT_FALSE(fs::exists(home / "Library/Caches/com.example.tool"));
        // What was left off stays: the open application's cache, the developer caches, ~/.cache.
        EXPECT_TRUE(fs::exists(home / "Library/Caches/com.example.app"));
        EXPECT_TRUE(fs::exists(home / ".npm/_cacache"));
        EXPECT_TRUE(fs::exists(home / ".cache/pip"));

        click(window, find(window, "doneKey"), 120);
        EXPECT_EQ(junk.painelPhase(), PainelPhase::results);
        QmlTestSupport::saveScreenshot(*window, shot + "6-after");
        window->close();
    }
    warnings.expectNone();
    removeFixture();
}

} // namespace

TEST(JunkChannelWindow, ScanTrimConfirmCleanToTrashAndReport) {
    QmlTestSupport::useLanguage("en");
    runJunkChannel("en");
}

// The rules' texts keep the language of their first use, so Portuguese gets a process of its own.
TEST(JunkChannelWindow, PortugueseInAProcessOfItsOwn) {
    QmlTestSupport::inPortugueseProcess([] { runJunkChannel("pt-BR"); });
}
