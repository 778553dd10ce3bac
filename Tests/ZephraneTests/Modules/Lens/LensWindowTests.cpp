#include "App/AppModel.hpp"
#include "Modules/Lens/LensRowsModel.hpp"
#include "Modules/Lens/SpaceLensModel.hpp"
#include "Modules/Lens/SunburstCanvas.hpp"
#include "Support/QmlTestSupport.hpp"
#include "TempTree.hpp"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStyleHints>
#include <QTest>

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>

using CleanerCore::URL;

namespace {

// A small home of known shape: a few large files, nested folders, and one folder with so many
// small files that they fold into an aggregate.
void buildFixture(const TestSupport::TempTree& tree) {
    tree.file("archive/2019.tar", 3'000'000);
    tree.file("archive/2020.tar", 2'000'000);
    tree.file("archive/old/notes.txt", 200'000);
    tree.file("archive/old/scan.pdf", 400'000);
    tree.file("projects/app/build/out.bin", 2'500'000);
    tree.file("projects/app/src/main.cpp", 50'000);
    tree.file("projects/app/src/util.cpp", 30'000);
    tree.file("projects/site/assets/hero.png", 800'000);
    tree.file("projects/site/index.html", 20'000);
    tree.file("photos/beach.jpg", 1'200'000);
    tree.file("photos/city.jpg", 900'000);
    for (int i = 0; i < 20; ++i)
        tree.file("misc/note-" + std::to_string(i) + ".txt", 10'000);
    tree.file("readme.txt", 5'000);
}

class LensWindow : public ::testing::Test {
protected:
    void SetUp() override {
        buildFixture(tree);
        lens = model.spaceLens();
        lens->setScanRoot(URL::file(tree.root().string()));
        lens->setRemovalHome(URL::file(tree.root().string()));
        lens->setDestination(CleanDestination::trash);
        window = QmlTestSupport::showMainWindow(engine, model);
        ASSERT_NE(window, nullptr);
        window->resize(1180, 760);
        model.open(Channel::lens);
        QmlTestSupport::settle();
    }
    void TearDown() override {
        QmlTestSupport::useLanguage("en");
        warnings.expectNone();
    }

    // The window point in the middle of the first ring-`depth` arc of a folder.
    QPoint folderArc(int depth) const {
        auto* map = qobject_cast<SunburstCanvas*>(QmlTestSupport::find(window, "sunburst"));
        const auto geometry = map->geometry();
        for (const auto& segment : lens->navigation()->segments()) {
            if (segment.depth != depth || !segment.node->isDirectory() || segment.node->children().empty())
                continue;
            const double angle = (segment.start + segment.end) / 2;
            const double radius = geometry.mid(depth);
            const QPointF local(map->width() / 2 + radius * std::sin(angle),
                                map->height() / 2 - radius * std::cos(angle));
            return map->mapToScene(local).toPoint();
        }
        return {};
    }

    void scanAndWait() {
        QmlTestSupport::click(window, QmlTestSupport::find(window, "scanKey"));
        QmlTestSupport::waitFor([&] { return lens->phase() == ModulePhase::ready; }, 30000, 100);
    }

    void waitForReveal() { QmlTestSupport::settle(750); }

    TestSupport::TempTree tree;
    QmlTestSupport::WarningCollector warnings;
    AppModel model;
    SpaceLensModel* lens = nullptr;
    QQmlApplicationEngine engine;
    QQuickWindow* window = nullptr;
};

} // namespace

TEST_F(LensWindow, ScansDrillsDownByPointerAndKeyboardMarksAndRemoves) {
    QmlTestSupport::saveScreenshot(*window, "lens-idle");
    scanAndWait();
    auto* map = qobject_cast<SunburstCanvas*>(QmlTestSupport::find(window, "sunburst"));
    ASSERT_NE(map, nullptr);
    QQuickItem* list = QmlTestSupport::find(window, "lensList");
    ASSERT_NE(list, nullptr);
    QmlTestSupport::saveScreenshot(*window, "lens-root");

    // Pointer: a double tap on a folder's arc opens it, the reveal runs, a tap on the centre goes up.
    const QPoint archive = folderArc(1);
    ASSERT_FALSE(archive.isNull());
    QTest::mouseDClick(window, Qt::LeftButton, {}, archive);
    ASSERT_TRUE(QTest::qWaitFor([&] { return lens->navigation()->path().size() == 2; }, 2000));
    EXPECT_LT(map->progress(), 1);
    waitForReveal();
    EXPECT_EQ(map->progress(), 1);
    QmlTestSupport::saveScreenshot(*window, "lens-depth2");

    const QPoint inner = folderArc(1);
    ASSERT_FALSE(inner.isNull());
    QTest::mouseClick(window, Qt::LeftButton, {}, inner);
    const int tapWait = QGuiApplication::styleHints()->mouseDoubleClickInterval() + 200;
    QmlTestSupport::settle(tapWait);
    ASSERT_TRUE(lens->navigation()->cursor());
    EXPECT_EQ(lens->navigation()->path().size(), 2u);
    const QPoint centre = map->mapToScene(QPointF(map->width() / 2, map->height() / 2)).toPoint();
    QTest::mouseClick(window, Qt::LeftButton, {}, centre);
    QmlTestSupport::settle(tapWait);
    EXPECT_EQ(lens->navigation()->path().size(), 1u);
    // The folder one came from stays lit.
    EXPECT_EQ(lens->navigation()->highlightedRowIndex(), 0);

    // Keyboard: down the list, open, mark, back up.
    list->forceActiveFocus();
    QTest::keyClick(window, Qt::Key_Down);
    EXPECT_EQ(lens->navigation()->highlightedRowIndex(), 1);
    const std::string projects = lens->navigation()->rowNodes()[1]->path();
    QTest::keyClick(window, Qt::Key_Right);
    EXPECT_EQ(lens->navigation()->focusNode()->path(), projects);
    QTest::keyClick(window, Qt::Key_Down, Qt::ControlModifier); // opens nothing without a cursor
    QTest::keyClick(window, Qt::Key_Down);
    QTest::keyClick(window, Qt::Key_Down, Qt::ControlModifier);
    EXPECT_EQ(lens->navigation()->path().size(), 3u);
    waitForReveal();
    QmlTestSupport::saveScreenshot(*window, "lens-depth3");
    QTest::keyClick(window, Qt::Key_Down);
    QTest::keyClick(window, Qt::Key_Space);
    ASSERT_EQ(lens->markedCount(), 1);
    const URL markedDeep = lens->markedNodes().front()->url();
    QTest::keyClick(window, Qt::Key_Left);
    QTest::keyClick(window, Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(lens->navigation()->path().size(), 1u);
    const std::int64_t before = lens->navigation()->root()->size();

    // Mark the photos folder as well, then look at the lit map.
    const URL photos = URL::file(tree.path("photos").string());
    lens->navigation()->setCursor(photos);
    QTest::keyClick(window, Qt::Key_Space);
    ASSERT_EQ(lens->markedCount(), 2);
    lens->navigation()->setCursor(std::nullopt);
    waitForReveal();
    QmlTestSupport::saveScreenshot(*window, "lens-marked");

    // Delete asks, the confirmation removes to the trash, and map and list follow.
    QTest::keyClick(window, Qt::Key_Delete);
    ASSERT_EQ(lens->painelPhase(), PainelPhase::confirm);
    QmlTestSupport::settle();
    QmlTestSupport::saveScreenshot(*window, "lens-confirm");
    const int rowsBefore = lens->rows()->rowCount();
    lens->confirm();
    ASSERT_TRUE(QTest::qWaitFor([&] { return lens->phase() == ModulePhase::done; }, 20000));
    ASSERT_TRUE(lens->lastReport());
    EXPECT_EQ(lens->lastReport()->removed.size(), 2u);
    EXPECT_FALSE(std::filesystem::exists(tree.path("photos")));
    EXPECT_FALSE(std::filesystem::exists(markedDeep.path()));
    EXPECT_LT(lens->navigation()->root()->size(), before - 2'000'000);
    EXPECT_EQ(lens->rows()->rowCount(), rowsBefore - 1);
    EXPECT_EQ(lens->markedCount(), 0);
    QmlTestSupport::settle();
    QmlTestSupport::saveScreenshot(*window, "lens-removed-outcome");
    lens->done();
    QmlTestSupport::settle();
    QmlTestSupport::saveScreenshot(*window, "lens-after-removal");
}
