#include "Modules/Shared/FakeChannelModel.hpp"
#include "App/Preferences.hpp"
#include "Painel/ByteFormat.hpp"
#include "Support/QmlTestSupport.hpp"

#include "TempTree.hpp"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QThreadPool>

#include <gtest/gtest.h>

using CleanerCore::URL;

namespace {

// A window holding the shared phase screen over a fake channel, with a plain results list. It is
// placed beside the module's own files so that their types resolve as they do for the main window.
const char* const windowQml = R"qml(
import QtQuick
import Zephrane
Window {
    id: window
    required property ModulePhaseModel model
    property bool contrast: false
    width: 760
    height: 560
    color: PainelTheme.bg
    Binding { target: PainelTheme; property: "increasedContrast"; value: window.contrast }
    ModulePhaseView {
        objectName: "phaseView"
        anchors.fill: parent
        model: window.model
        channelTitle: qsTrId("channel.junk.title")
        idleMessage: "Caches, logs and leftovers that apps leave behind. Scanning only reads; nothing is removed until you confirm."
        emptyMessage: "Nothing here takes up space that could go."
        confirmNote: "Some of these files belong to apps that are open."
        results: Component {
            Column {
                objectName: "fakeResults"
                padding: 32
                spacing: 6
                Repeater {
                    model: window.model.itemCount
                    Text { required property int index; text: "item " + index; color: PainelTheme.text }
                }
            }
        }
    }
}
)qml";

// Holds the thread pool's threads so that work queued after it waits until release().
class PoolBlocker {
public:
    PoolBlocker() {
        for (int i = 0; i < QThreadPool::globalInstance()->maxThreadCount(); ++i)
            QThreadPool::globalInstance()->start([gate = gate] { gate->wait(); });
    }
    ~PoolBlocker() { release(); }
    void release() { gate->open(); }

private:
    std::shared_ptr<FakeChannelModel::Gate> gate = std::make_shared<FakeChannelModel::Gate>();
};

class ModulePhaseScreens : public ::testing::Test {
protected:
    void TearDown() override {
        delete window;
        QmlTestSupport::useLanguage("en");
        warnings.expectNone();
    }

    // A new window over a new model.
    void open(bool contrast) {
        delete window;
        window = nullptr;
        owned = std::make_unique<FakeChannelModel>(preferences);
        owned->setRemovalHome(URL::file(tree.root().string()));
        QQmlComponent component(&engine);
        component.setData(windowQml, QUrl("qrc:/Zephrane/PhaseTestWindow.qml"));
        (void)QTest::qWaitFor([&] { return !component.isLoading(); }, 5000);
        if (!component.isReady())
            FAIL() << component.errorString().toStdString();
        QObject* made = component.createWithInitialProperties(
            {{"model", QVariant::fromValue(static_cast<ModulePhaseModel*>(owned.get()))},
             {"contrast", contrast}});
        window = qobject_cast<QQuickWindow*>(made);
        ASSERT_NE(window, nullptr) << component.errorString().toStdString();
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
        QmlTestSupport::settle();
    }

    bool shows(const char* name) const { return QmlTestSupport::shown(window, name); }
    QQuickItem* find(const char* name) const { return QmlTestSupport::find(window, name); }
    void shoot(const QString& phase, const QString& language, bool contrast) {
        QmlTestSupport::settle(80);
        warnings.expectNone(phase + ": ");
        QmlTestSupport::saveScreenshot(
            *window, QStringLiteral("phase-%1-%2%3").arg(phase, language, contrast ? "-contrast" : ""));
    }
    std::string inHome(const std::string& relative) const { return tree.path(relative).string(); }

    QmlTestSupport::WarningCollector warnings;
    TestSupport::TempTree tree;
    Preferences preferences;
    std::unique_ptr<FakeChannelModel> owned;
    QQmlEngine engine;
    QQuickWindow* window = nullptr;
    QmlTestSupport::AnnouncementLog announced;
    QStringList& spoken = announced.said;
    FakeChannelModel& model() { return *owned; }
};

using QmlTestSupport::finishes;

} // namespace

TEST_F(ModulePhaseScreens, EveryPhaseShowsItsPanelInBothLanguagesAndPalettes) {
    for (const QString& language : {QStringLiteral("en"), QStringLiteral("pt-BR")})
        for (bool contrast : {false, true}) {
            SCOPED_TRACE((language + (contrast ? " contrast" : "")).toStdString());
            QmlTestSupport::useLanguage(language);
            open(contrast);
            ASSERT_NE(window, nullptr);

            EXPECT_TRUE(shows("scanKey"));
            shoot("idle", language, contrast);

            model().plan = {
                {"caches", "User caches", {fakeCategory("caches", inHome("c"), {"a", "b", "c"}, 1'234'567)}},
                {"logs", "Application and system logs", {fakeCategory("logs", inHome("l"), {"x"}, 52'000)}},
                // The guard refuses the home's key folder: the report has a failure to show.
                {"keys", "Keys", {fakeCategory("keys", inHome(""), {".ssh"}, 4'000)}},
                {"xcode", "Developer leftovers", {}},
                {"mail", "Mail downloads", {}}};
            model().gate = std::make_shared<FakeChannelModel::Gate>();
            find("scanKey")->forceActiveFocus();
            QFuture<void> scan = model().scan();
            EXPECT_TRUE(shows("stopKey"));
            EXPECT_TRUE(find("stopKey")->hasActiveFocus()) << "the scan key is gone: focus lands on the stop key";
            EXPECT_TRUE(shows("progressBar"));
            shoot("scanning", language, contrast);
            model().gate->open();
            ASSERT_TRUE(finishes(scan));

            EXPECT_TRUE(shows("fakeResults"));
            shoot("results", language, contrast);

            for (const char* destination : {"trash", "delete"}) {
                preferences.setCleanDestinationRaw(destination);
                model().setConfirming(true);
                QmlTestSupport::settle();
                EXPECT_TRUE(shows(destination == std::string("trash") ? "confirmKey" : "holdKey"));
                EXPECT_FALSE(shows(destination == std::string("trash") ? "holdKey" : "confirmKey"));
                shoot(QStringLiteral("confirm-%1").arg(destination), language, contrast);
                model().actions()->cancelConfirm();
            }
            preferences.setCleanDestination(CleanDestination::trash);

            // "c/a" is removed, ".ssh" is refused, the rest are gone; the pool is held so the panel
            // can be seen.
            tree.file("c/a", 10);
            tree.folder(".ssh");
            {
                PoolBlocker blocker;
                QFuture<void> cleaning = model().clean(CleanerCore::RemovalMode::trash);
                QmlTestSupport::settle();
                EXPECT_EQ(model().painelPhase(), PainelPhase::cleaning);
                shoot("cleaning", language, contrast);
                blocker.release();
                ASSERT_TRUE(finishes(cleaning));
            }
            EXPECT_TRUE(shows("doneKey"));
            EXPECT_TRUE(shows("reportTime"));
            EXPECT_FALSE(shows("emptyTrashKey")) << "no way to the trash was given";
            shoot("success", language, contrast);
            ASSERT_TRUE(shows("failuresToggle"));
            QMetaObject::invokeMethod(find("failuresToggle"), "clicked");
            shoot("success-failures", language, contrast);
            model().actions()->done();

            model().plan = {{"caches", "User caches", {}}};
            ASSERT_TRUE(finishes(model().scan()));
            EXPECT_TRUE(shows("rescanKey"));
            shoot("empty", language, contrast);
        }
}

TEST_F(ModulePhaseScreens, EachNewScreenIsSpokenOnceAndTheSheetIsSilent) {
    open(false);
    ASSERT_NE(window, nullptr);
    tree.file("c/a", 10);
    model().plan = {{"caches", "Caches", {fakeCategory("caches", inHome("c"), {"a"}, 2'000'000)}},
                    {"logs", "Logs", {}}};
    ASSERT_TRUE(finishes(model().scan()));
    EXPECT_EQ(spoken, (QStringList{"Scanning", "Caches done", "Logs done",
                                   "Scan finished, " + ByteFormat::spoken(2'000'000) + " found"}));

    spoken.clear();
    model().setConfirming(true);
    model().actions()->cancelConfirm();
    EXPECT_TRUE(spoken.isEmpty()) << spoken.join(" | ").toStdString();

    model().setConfirming(true);
    model().actions()->confirm();
    ASSERT_TRUE(QTest::qWaitFor([&] { return model().phase() == ModulePhase::done; }, 5000));
    ASSERT_EQ(spoken.size(), 2);
    EXPECT_EQ(spoken[0], "Cleaning");
    EXPECT_TRUE(spoken[1].startsWith("Cleanup finished")) << spoken[1].toStdString();

    // Back to the results the announcement is made again; an empty rescan says there is nothing.
    spoken.clear();
    model().actions()->done();
    EXPECT_EQ(spoken.size(), 1);
    model().plan = {{"logs", "Logs", {}}};
    ASSERT_TRUE(finishes(model().scan()));
    EXPECT_EQ(spoken.back(), "Scan finished, nothing to clean");
}
