#include "Painel/HoldToConfirmController.hpp"
#include "Support/QmlTestSupport.hpp"

#include <QAccessible>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

using namespace std::chrono_literals;

namespace {

struct Look {
    bool increasedContrast;
    const char* language;
};

// Loads the gallery of every kit piece in one palette and language; every QML warning fails.
class Gallery : public ::testing::Test {
protected:
    void load(Look look) {
        QmlTestSupport::useLanguage(look.language);
        engine.addImportPath(QStringLiteral("qrc:/"));
        engine.setInitialProperties(
            {{"increasedContrast", look.increasedContrast}, {"locale", QString::fromLatin1(look.language)}});
        engine.load(QUrl::fromLocalFile(
            QStringLiteral(ZEPHRANE_SOURCE_DIR "/Tests/ZephraneTests/Painel/PainelGallery.qml")));
        ASSERT_FALSE(engine.rootObjects().isEmpty());
        window = qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
        ASSERT_NE(window, nullptr);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
    }
    void TearDown() override {
        warnings.expectNone();
        QmlTestSupport::useLanguage("en");
    }
    QQuickItem* item(const char* name) const {
        auto* found = window->findChild<QQuickItem*>(name);
        if (!found)
            throw std::runtime_error(std::string("no item named ") + name);
        return found;
    }
    HoldToConfirmController* controller(const char* key) const {
        return item(key)->property("controller").value<HoldToConfirmController*>();
    }
    QPoint centre(QQuickItem* of) const {
        return of->mapToScene(QPointF(of->width() / 2, of->height() / 2)).toPoint();
    }

    QmlTestSupport::WarningCollector warnings;
    QQmlApplicationEngine engine;
    QQuickWindow* window = nullptr;
    std::chrono::steady_clock::time_point now{};
};

class GalleryLooks : public Gallery, public ::testing::WithParamInterface<Look> {};

} // namespace

TEST_P(GalleryLooks, EveryPieceLoadsCleanlyAndIsPhotographed) {
    const Look look = GetParam();
    load(look);
    const QString name =
        QStringLiteral("%1-%2").arg(look.increasedContrast ? "contrast" : "standard", look.language);

    // Focus shows on a key in one palette and on a lamp in the other.
    item(look.increasedContrast ? "focusedLamp" : "focusedKey")->forceActiveFocus(Qt::TabFocusReason);
    HoldToConfirmController* filling = controller("holdFilling");
    filling->setClock([this] { return now; });
    filling->press();
    now += 900ms;
    filling->tick();

    QQuickItem* logo = item("logo");
    QTRY_COMPARE_WITH_TIMEOUT(logo->property("litCount").toDouble(), 8.0, 3000);
    QmlTestSupport::settle(100);
    QmlTestSupport::saveScreenshot(*window, "painel-gallery-" + name);

    controller("holdIdle")->requestConfirmation();
    QmlTestSupport::settle(150);
    QmlTestSupport::saveScreenshot(*window, "painel-confirm-" + name);
    filling->release();
}

INSTANTIATE_TEST_SUITE_P(Painel, GalleryLooks,
                         ::testing::Values(Look{false, "en"}, Look{true, "en"}, Look{false, "pt-BR"},
                                           Look{true, "pt-BR"}),
                         [](const ::testing::TestParamInfo<Look>& look) {
                             return std::string(look.param.increasedContrast ? "Contrast" : "Plain") +
                                    (std::string(look.param.language) == "en" ? "English" : "Portuguese");
                         });

TEST_F(Gallery, NumbersAndMetersReadAsLabelAndValue) {
    load({false, "en"});
    QAccessibleInterface* number = QAccessible::queryAccessibleInterface(item("bytesNumber"));
    ASSERT_NE(number, nullptr);
    EXPECT_EQ(number->text(QAccessible::Name), "Selected: 1.23 gigabytes");
    QAccessibleInterface* meter = QAccessible::queryAccessibleInterface(item("meter"));
    ASSERT_NE(meter, nullptr);
    EXPECT_EQ(meter->role(), QAccessible::ProgressBar);
    // The share is always heard, whatever value text a meter also carries.
    EXPECT_EQ(meter->text(QAccessible::Name), "Disk, 62%");
    QAccessibleInterface* mirrored = QAccessible::queryAccessibleInterface(item("mirroredMeter"));
    ASSERT_NE(mirrored, nullptr);
    EXPECT_TRUE(mirrored->text(QAccessible::Name).endsWith("30%"));
    EXPECT_EQ(mirrored->text(QAccessible::Description), "right to left");
}

TEST_F(Gallery, TheHoldKeyFiresFromAFullHoldOrFromTheDialogButNotFromAShortHold) {
    load({false, "en"});
    QQuickItem* key = item("holdIdle");
    HoldToConfirmController* timing = controller("holdIdle");
    timing->setClock([this] { return now; });
    QSignalSpy action(key, SIGNAL(action()));

    QTest::mousePress(window, Qt::LeftButton, {}, centre(key));
    EXPECT_TRUE(timing->holding());
    now += 1400ms;
    QTest::mouseRelease(window, Qt::LeftButton, {}, centre(key));
    EXPECT_EQ(action.count(), 0);

    QTest::mousePress(window, Qt::LeftButton, {}, centre(key));
    now += 1500ms;
    QTest::mouseRelease(window, Qt::LeftButton, {}, centre(key));
    EXPECT_EQ(action.count(), 1);

    // The keyboard asks first; Escape walks away, the confirming key acts.
    key->forceActiveFocus(Qt::TabFocusReason);
    QTest::keyClick(window, Qt::Key_Space);
    EXPECT_TRUE(timing->confirming());
    EXPECT_FALSE(timing->holding());
    QmlTestSupport::settle();
    QTest::keyClick(window, Qt::Key_Escape);
    QmlTestSupport::settle();
    EXPECT_FALSE(timing->confirming());
    EXPECT_EQ(action.count(), 1);

    QTest::keyClick(window, Qt::Key_Return);
    QmlTestSupport::settle();
    ASSERT_TRUE(timing->confirming());
    QTest::keyClick(window, Qt::Key_Tab); // from Cancel, where the dialog starts, to the confirming key
    QTest::keyClick(window, Qt::Key_Space);
    QmlTestSupport::settle();
    EXPECT_EQ(action.count(), 2);
    EXPECT_FALSE(timing->confirming());
}
