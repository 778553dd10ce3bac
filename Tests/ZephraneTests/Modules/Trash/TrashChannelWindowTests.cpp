#include "App/AppModel.hpp"
#include "CleanerCore/Platform/SystemCalls.hpp"
#include "FaultySystemCalls.hpp"
#include "JunkHome.hpp"
#include "Modules/Junk/SystemJunkModel.hpp"
#include "Modules/Trash/TrashModel.hpp"
#include "Support/QmlTestSupport.hpp"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <gtest/gtest.h>

#include <filesystem>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

using QmlTestSupport::click;
using QmlTestSupport::find;
using QmlTestSupport::homeTrash;
using QmlTestSupport::press;
using QmlTestSupport::testHome;
using QmlTestSupport::trashed;
using QmlTestSupport::waitFor;

void removeFixture() {
    TestSupport::removeJunkHome(testHome());
    fs::remove_all(homeTrash());
    fs::remove_all(testHome() / "Volumes");
}

// A second drive's trash, a fixture folder like the home trash.
fs::path volumeTrash() {
    return testHome() / "Volumes/USB STICK" / (".Trash-" + std::to_string(::getuid()));
}

// The junk channel's report leads here; the trash it filled is listed, asked about from the
// keyboard, emptied by holding the key, and reported. A trash that can't be read shows its panel.
void runTrashChannel(const QString& language) {
    removeFixture();
    TestSupport::buildJunkHome(testHome());
    trashed(homeTrash(), "Quarterly report.pdf", 300 * 1024);
    trashed(homeTrash(), "old notes.txt", 2000);
    trashed(volumeTrash(), "holiday.mov", 900 * 1024);
    QmlTestSupport::WarningCollector warnings;
    {
        AppModel model;
        SystemJunkModel& junk = *model.junk();
        TrashModel& trash = *model.trash();
        junk.setRunningBundleIDs([] { return std::set<std::string>{"com.example.app"}; });
        // The machine's own volumes stay out of it.
        const CleanerCore::URL home = CleanerCore::URL::file(testHome().string());
        trash.setBins(CleanerCore::TrashBin(home), [home] {
            return std::vector{CleanerCore::TrashBin(CleanerCore::URL::file(volumeTrash().string()), home)};
        });
        QQmlApplicationEngine engine;
        QQuickWindow* window = QmlTestSupport::showMainWindow(engine, model);
        ASSERT_NE(window, nullptr);
        const QString shot = QStringLiteral("trash-%1-").arg(language);

        // Junk to the trash, then the report's key.
        model.open(Channel::junk);
        QmlTestSupport::settle(120);
        junk.startScan();
        waitFor([&] { return junk.phase() == ModulePhase::ready; });
        junk.clean(CleanerCore::RemovalMode::trash);
        waitFor([&] { return junk.phase() == ModulePhase::done; });
        const auto junked = static_cast<int>(junk.lastReport()->removed.size());
        ASSERT_GT(junked, 0);
        press(window, find(window, "emptyTrashKey"));
        EXPECT_EQ(model.selection(), Channel::trash);
        waitFor([&] { return trash.phase() == ModulePhase::ready && !trash.isReading(); });
        EXPECT_EQ(trash.itemCount(), junked + 3);
        EXPECT_EQ(trash.volumes().size(), 1u);
        EXPECT_EQ(trash.painelPhase(), PainelPhase::results);
        QQuickItem* emptyKey = find(window, "emptyKey");
        ASSERT_NE(emptyKey, nullptr);
        QmlTestSupport::saveScreenshot(*window, shot + "1-results");

        // From the keyboard the key asks first; Escape leaves everything in place.
        emptyKey->forceActiveFocus();
        QTest::keyClick(window, Qt::Key_Space);
        QmlTestSupport::settle(300);
        EXPECT_NE(find(window, "holdDialogConfirm"), nullptr);
        QmlTestSupport::saveScreenshot(*window, shot + "2-confirm");
        QTest::keyClick(window, Qt::Key_Escape);
        QmlTestSupport::settle(300);
        EXPECT_EQ(trash.phase(), ModulePhase::ready);
        EXPECT_TRUE(fs::exists(homeTrash() / "files/old notes.txt"));

        // Emptying takes a held press; the key goes away with the results it empties.
        const QPoint keyCentre = emptyKey->mapToScene(QPointF(emptyKey->width() / 2, emptyKey->height() / 2)).toPoint();
        QTest::mousePress(window, Qt::LeftButton, {}, keyCentre);
        QTest::qWait(500);
        QmlTestSupport::saveScreenshot(*window, shot + "3-holding");
        waitFor([&] { return trash.phase() != ModulePhase::ready; });
        QTest::mouseRelease(window, Qt::LeftButton, {}, keyCentre);
        waitFor([&] { return trash.phase() == ModulePhase::done && !trash.isReading(); });
        QmlTestSupport::saveScreenshot(*window, shot + "4-success");
        ASSERT_TRUE(trash.outcome());
        EXPECT_TRUE(trash.outcome()->failures.empty());
        EXPECT_EQ(trash.outcome()->lines.at(0).count, junked + 3);
        for (const fs::path& bin : {homeTrash(), volumeTrash()}) {
            EXPECT_TRUE(fs::is_empty(bin / "files")) << bin;
            EXPECT_TRUE(fs::is_empty(bin / "info")) << bin;
        }
        EXPECT_EQ(QmlTestSupport::findItem(window->contentItem(), "emptyTrashKey", true), nullptr) << "emptying is for good: no trash to empty after it";

        click(window, find(window, "doneKey"), 120);
        EXPECT_EQ(trash.painelPhase(), PainelPhase::empty);
        QmlTestSupport::saveScreenshot(*window, shot + "5-empty");

        // What the file manager puts in the trash shows by itself.
        trashed(homeTrash(), "old notes.txt", 2000);
        waitFor([&] { return trash.itemCount() == 1 && !trash.isReading(); });
        EXPECT_EQ(trash.painelPhase(), PainelPhase::results);

        // Access taken away: the panel says so, and trying again once it is back shows the trash.
        {
            TestSupport::FaultySystemCalls faulty;
            const std::string denied = (homeTrash() / "files").string();
            faulty.openFault = [denied](const char* name) { return name == denied ? EACCES : 0; };
            const CleanerCore::Platform::ScopedSystemCalls scoped(faulty);
            trash.rescan();
            ASSERT_TRUE(QTest::qWaitFor([&] { return trash.access() == TrashModel::Access::denied; }, 20000));
        }
        waitFor([&] { return !trash.isReading(); });
        QmlTestSupport::saveScreenshot(*window, shot + "6-no-access");
        press(window, find(window, "retryKey"));
        waitFor([&] { return trash.access() == TrashModel::Access::granted && !trash.isReading(); });
        EXPECT_EQ(trash.itemCount(), 1);
        EXPECT_NE(find(window, "emptyKey"), nullptr);
        window->close();
    }
    warnings.expectNone();
    removeFixture();
}

} // namespace

TEST(TrashChannelWindow, FromTheJunkReportToAnEmptiedTrash) {
    QmlTestSupport::useLanguage("en");
    runTrashChannel("en");
}

TEST(TrashChannelWindow, InPortuguese) {
    QmlTestSupport::useLanguage("pt-BR");
    runTrashChannel("pt-BR");
    QmlTestSupport::useLanguage("en");
}
