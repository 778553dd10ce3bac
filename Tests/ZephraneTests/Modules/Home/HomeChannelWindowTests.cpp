#include "App/AppModel.hpp"
#include "JunkHome.hpp"
#include "Support/QmlTestSupport.hpp"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <gtest/gtest.h>

#include <filesystem>

namespace fs = std::filesystem;

namespace {

using QmlTestSupport::shown;
using QmlTestSupport::find;
using QmlTestSupport::testHome;

// Home before, during and after a smart scan, then the review key to the junk.
void runHome(const QString& language) {
    TestSupport::removeJunkHome(testHome());
    TestSupport::buildJunkHome(testHome());
    QmlTestSupport::WarningCollector warnings;
    {
        AppModel model;
        model.junk()->setRunningBundleIDs([] { return std::set<std::string>{}; });
        QQmlApplicationEngine engine;
        QQuickWindow* window = QmlTestSupport::showMainWindow(engine, model);
        ASSERT_NE(window, nullptr);
        QmlTestSupport::settle(120);
        const QString shot = QStringLiteral("home-%1-").arg(language);
        EXPECT_EQ(model.selection(), Channel::home);
        EXPECT_EQ(model.junk()->phase(), ModulePhase::idle) << "showing Home scans nothing";
        EXPECT_FALSE(model.home()->disk().name.isEmpty()) << "the screen reads the disk";
        EXPECT_TRUE(shown(window, "smartScanKey"));
        EXPECT_FALSE(shown(window, "visorTotal"));
        QmlTestSupport::saveScreenshot(*window, shot + "1-before");

        QQuickItem* scanKey = find(window, "smartScanKey");
        ASSERT_NE(scanKey, nullptr);
        scanKey->forceActiveFocus();
        QTest::keyClick(window, Qt::Key_Space);
        ASSERT_TRUE(model.isSmartScanning());
        // The fixture scans in moments: look before the event loop lets it finish.
        EXPECT_TRUE(shown(window, "scanProgress"));
        QmlTestSupport::saveScreenshot(*window, shot + "2-scanning");

        ASSERT_TRUE(QTest::qWaitFor([&] { return !model.isSmartScanning(); }, 20000));
        QmlTestSupport::settle(120);
        EXPECT_TRUE(shown(window, "visorTotal"));
        EXPECT_TRUE(shown(window, "reviewKey"));
        QmlTestSupport::saveScreenshot(*window, shot + "3-after");

        // A card opens its channel from the keyboard.
        QQuickItem* trashCard = find(window, QStringLiteral("readingCard%1").arg(Channels::rawValue(Channel::trash)));
        ASSERT_NE(trashCard, nullptr);
        trashCard->forceActiveFocus();
        QTest::keyClick(window, Qt::Key_Return);
        EXPECT_EQ(model.selection(), Channel::trash);
        model.open(Channel::home);
        QmlTestSupport::settle(120);

        QmlTestSupport::click(window, find(window, "reviewKey"));
        EXPECT_EQ(model.selection(), Channel::junk);
        window->close();
    }
    warnings.expectNone();
    TestSupport::removeJunkHome(testHome());
}

} // namespace

TEST(HomeChannelWindow, SmartScanFromTheKeyboardThenReview) {
    QmlTestSupport::useLanguage("en");
    runHome("en");
}

// The rules' texts keep the language of their first use, so Portuguese gets a process of its own.
TEST(HomeChannelWindow, PortugueseInAProcessOfItsOwn) {
    QmlTestSupport::inPortugueseProcess([] { runHome("pt-BR"); });
}
