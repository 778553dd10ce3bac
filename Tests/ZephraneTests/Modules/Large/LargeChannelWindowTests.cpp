#include "App/AppModel.hpp"
#include "LargeHome.hpp"
#include "Modules/Large/LargeFilesModel.hpp"
#include "Support/QmlTestSupport.hpp"

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
    const fs::path home = testHome();
    for (const char* top : {"Movies", "Downloads", "Documents", "Library", "Album.photoslibrary", "loose.bin",
                            ".hidden.bin"})
        fs::remove_all(home / top);
    fs::remove_all(homeTrash());
}

// The channel's whole life in the real window, photographed at each screen: idle, scanning,
// results, filtered, filtered to nothing, selected, confirmation, success; the removed files end
// up in the freedesktop trash.
void runLargeChannel(const QString& language) {
    removeFixture();
    TestSupport::buildLargeHome(testHome(), std::chrono::system_clock::now());
    QmlTestSupport::WarningCollector warnings;
    {
        AppModel model;
        LargeFilesModel& large = *model.large();
        QQmlApplicationEngine engine;
        QQuickWindow* window = QmlTestSupport::showMainWindow(engine, model);
        ASSERT_NE(window, nullptr);
        const QString shot = QStringLiteral("large-%1-").arg(language);

        large.scanOnFirstVisit();
        large.stop();
        waitFor([&] { return large.phase() == ModulePhase::idle; });
        model.open(Channel::large);
        QmlTestSupport::settle(120);
        QmlTestSupport::saveScreenshot(*window, shot + "1-idle");

        press(window, find(window, "scanKey"));
        EXPECT_EQ(large.phase(), ModulePhase::scanning);
        QmlTestSupport::saveScreenshot(*window, shot + "2-scanning");
        waitFor([&] { return large.phase() == ModulePhase::ready; });
        ASSERT_EQ(large.visibleCount(), 3);
        QmlTestSupport::saveScreenshot(*window, shot + "3-results");

        click(window, find(window, "filter-size-50000000"));
        EXPECT_EQ(large.visibleCount(), 6);
        click(window, find(window, "filter-kind-video"));
        EXPECT_EQ(large.visibleCount(), 1);
        QmlTestSupport::saveScreenshot(*window, shot + "4-filtered");
        click(window, find(window, "filter-size-1000000000"));
        EXPECT_TRUE(large.filteredEmpty());
        EXPECT_NE(find(window, "filteredEmpty"), nullptr);
        QmlTestSupport::saveScreenshot(*window, shot + "5-filtered-empty");
        click(window, find(window, "filter-kind-all"));
        click(window, find(window, "filter-size-100000000"));
        ASSERT_EQ(large.visibleCount(), 3);

        // Everything shown, then the smallest off again from the keyboard, reached with the arrows.
        click(window, find(window, "selectAll"));
        EXPECT_EQ(large.selection()->count(), 3);
        QQuickItem* first = find(window, "largeRow-0");
        ASSERT_NE(first, nullptr);
        first->forceActiveFocus();
        QTest::keyClick(window, Qt::Key_Down);
        QTest::keyClick(window, Qt::Key_Down);
        QmlTestSupport::settle();
        QQuickItem* last = find(window, "largeRow-2");
        ASSERT_NE(last, nullptr);
        EXPECT_TRUE(last->hasActiveFocus()) << "the arrows move the focus from row to row";
        QTest::keyClick(window, Qt::Key_Space);
        QmlTestSupport::settle(120);
        EXPECT_EQ(large.selection()->count(), 2);
        EXPECT_EQ(large.selectAllState(), "mixed");
        QmlTestSupport::saveScreenshot(*window, shot + "6-selected");

        click(window, find(window, "cleanKey"), 120);
        EXPECT_EQ(large.painelPhase(), PainelPhase::confirm);
        QmlTestSupport::saveScreenshot(*window, shot + "7-confirm");

        click(window, find(window, "confirmKey"));
        waitFor([&] { return large.phase() == ModulePhase::done; });
        QmlTestSupport::saveScreenshot(*window, shot + "8-success");
        ASSERT_TRUE(large.outcome());
        EXPECT_TRUE(large.outcome()->failures.empty());
        const fs::path home = testHome(), trash = homeTrash();
        EXPECT_TRUE(fs::exists(trash / "files/holiday.mp4"));
        EXPECT_TRUE(fs::exists(trash / "files/disk.iso"));
        EXPECT_TRUE(fs::exists(home / "Downloads/backup.zip"));

        click(window, find(window, "doneKey"), 120);
        EXPECT_EQ(large.painelPhase(), PainelPhase::results);
        EXPECT_EQ(large.visibleCount(), 1);
        QmlTestSupport::saveScreenshot(*window, shot + "9-after");
        window->close();
    }
    warnings.expectNone();
    removeFixture();
}

} // namespace

TEST(LargeChannelWindow, ScanFilterSelectRemoveToTrashAndReport) {
    QmlTestSupport::useLanguage("en");
    runLargeChannel("en");
}

// The engine's texts keep the language of their first use, so Portuguese gets a process of its own.
TEST(LargeChannelWindow, PortugueseInAProcessOfItsOwn) {
    QmlTestSupport::inPortugueseProcess([] { runLargeChannel("pt-BR"); });
}
