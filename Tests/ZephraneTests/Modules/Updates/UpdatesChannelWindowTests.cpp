#include "App/AppModel.hpp"
#include "App/MainWindow.hpp"
#include "FlatpakFixture.hpp"
#include "LocalHttpServer.hpp"
#include "TempTree.hpp"
#include "Modules/Updates/UpdatesModel.hpp"
#include "Support/QmlTestSupport.hpp"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSettings>
#include <QTest>

#include <filesystem>

#include <gtest/gtest.h>

namespace {

using QmlTestSupport::click;
using QmlTestSupport::find;
using QmlTestSupport::waitFor;
using TestSupport::FlatpakFixture;
using TestSupport::LocalHttpServer;

std::string installedVersion(const std::string& id) {
    std::string output;
    FlatpakFixture::run({"flatpak", "list", "--user", "--app", "--columns=application,version"}, output);
    for (std::size_t start = 0; start < output.size();) {
        const std::size_t end = std::min(output.find('\n', start), output.size());
        const std::string line = output.substr(start, end - start);
        if (line.rfind(id, 0) == 0) {
            const std::size_t field = line.find_first_not_of(" \t", id.size());
            return field == std::string::npos ? std::string() : line.substr(field);
        }
        start = end + 1;
    }
    return {};
}

// A Flatpak with version 2 waiting in its remote: the channel finds it, shows its notes, and
// installs it after the confirmation; afterwards the installation holds version 2.
void runUpdatesChannel(const QString& language, FlatpakFixture& fixture) {
    const std::string id = "org.zephrane.Test.Updated" + language.left(2).toStdString();
    const std::string name = "Updated " + language.toStdString();
    fixture.exportApp({id, name, "1.0"});
    fixture.install(id);
    fixture.exportApp({id, name, "2.0"});
    ASSERT_EQ(installedVersion(id), "1.0");
    QSettings().remove(QStringLiteral("updates"));

    QmlTestSupport::WarningCollector warnings;
    {
        AppModel model;
        UpdatesModel& updates = *model.updates();
        QQmlApplicationEngine engine;
        QQuickWindow* window = MainWindow::load(engine, model);
        ASSERT_NE(window, nullptr);
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
        const QString shot = QStringLiteral("updates-%1-").arg(language);

        EXPECT_FALSE(updates.pendingCount().has_value());
        model.open(Channel::updates);
        waitFor([&] { return updates.phase() != ModulePhase::idle; }); // the first visit checks by itself
        QmlTestSupport::saveScreenshot(*window, shot + "1-scanning");
        waitFor([&] { return updates.phase() == ModulePhase::ready; });
        QmlTestSupport::settle(120);
        QmlTestSupport::saveScreenshot(*window, shot + "2-results");
        const auto offered = std::ranges::find(updates.updates(), name, &CleanerCore::AppUpdate::name);
        ASSERT_NE(offered, updates.updates().end());
        EXPECT_EQ(offered->newVersion, "2.0");
        EXPECT_TRUE(updates.isSelected(*offered));

        QQuickItem* row = find(window, QStringLiteral("updateRow-%1").arg(QString::fromStdString(name)));
        ASSERT_NE(row, nullptr);
        row->forceActiveFocus();
        QTest::keyClick(window, Qt::Key_N);
        QmlTestSupport::settle(120);
        QmlTestSupport::saveScreenshot(*window, shot + "3-notes");
        click(window, find(window, "closeNotesKey"));

        click(window, find(window, "installAllKey"));
        EXPECT_TRUE(updates.installConfirming());
        QmlTestSupport::settle(120);
        QmlTestSupport::saveScreenshot(*window, shot + "4-confirm");
        click(window, find(window, "confirmInstallKey"));
        if (updates.isBusy()) {
            EXPECT_EQ(find(window, "installAllKey")->property("text").toString(), qtTrId("updates.stop"));
            QmlTestSupport::saveScreenshot(*window, shot + "5-installing");
        }
        waitFor([&] { return !updates.isBusy(); });
        QmlTestSupport::settle(120);
        QmlTestSupport::saveScreenshot(*window, shot + "6-installed");
        const auto after = std::ranges::find(updates.updates(), name, &CleanerCore::AppUpdate::name);
        EXPECT_EQ(updates.state(*after).kind, UpdatesModel::RowState::Kind::installed)
            << updates.state(*after).failure.toStdString();
        EXPECT_EQ(installedVersion(id), "2.0");
        window->close();
    }
    const QStringList seen = warnings.take();
    EXPECT_TRUE(seen.isEmpty()) << seen.join('\n').toStdString();
    fixture.uninstall(id);
}

std::string feedOffering(const std::string& version, const std::string& enclosure) {
    return "<rss><channel><item><title>" + version + "</title><description><![CDATA[<ul><li>Faster start</li>"
           "</ul>]]></description><enclosure url=\"" + enclosure + "\" sparkle:shortVersionString=\"" + version +
           "\"/></item></channel></rss>";
}

QString rowText(QQuickWindow* window, const QString& name, const char* child) {
    QQuickItem* item = QmlTestSupport::findItem(find(window, QStringLiteral("updateRow-%1").arg(name)), child, true);
    return item == nullptr ? QString() : item->property("text").toString();
}

// Two apps whose feeds a local server hands out: one offers a zip (installable here), one a plain
// http download (opened, never installed). The zip's host refuses the connection, so the install
// fails with plain words and the app on disk is left exactly as it was.
void runFeedUpdates(const QString& language) {
    const LocalHttpServer server([](const std::string& path) {
        LocalHttpServer::Response response;
        if (path == "/feedy.xml")
            response.body = feedOffering("2.0", "https://127.0.0.1:9/Feedy-2.0.zip");
        else if (path == "/plain.xml")
            response.body = feedOffering("4.0", "http://127.0.0.1:9/Plain-4.0.zip");
        else
            response.status = 404;
        return response;
    });
    const std::filesystem::path apps = QmlTestSupport::testHome() / "Applications";
    const auto bundle = [&](const std::string& name, const std::string& version) {
        const std::string plist = "<plist><dict><key>CFBundleIdentifier</key><string>net.feed." + name +
                                  "</string><key>CFBundleShortVersionString</key><string>" + version +
                                  "</string><key>SUFeedURL</key><string>" +
                                  server.url("/" + QString::fromStdString(name).toLower().toStdString() + ".xml") +
                                  "</string></dict></plist>";
        TestSupport::writeText(apps / (name + ".app/Contents/Info.plist"), plist);
        TestSupport::writeText(apps / (name + ".app") / "Contents/MacOS" / name, "#!/bin/sh\n");
        return plist;
    };
    const std::string feedyPlist = bundle("Feedy", "1.0");
    bundle("Plain", "3.0");
    QSettings().remove(QStringLiteral("updates"));

    QmlTestSupport::WarningCollector warnings;
    {
        AppModel model;
        UpdatesModel& updates = *model.updates();
        QQmlApplicationEngine engine;
        QQuickWindow* window = MainWindow::load(engine, model);
        ASSERT_NE(window, nullptr);
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
        const QString shot = QStringLiteral("updates-feed-%1-").arg(language);

        model.open(Channel::updates);
        waitFor([&] { return updates.phase() == ModulePhase::ready; });
        QmlTestSupport::saveScreenshot(*window, shot + "1-results");
        const auto named = [&](const std::string& name) {
            const auto it = std::ranges::find(updates.updates(), name, &CleanerCore::AppUpdate::name);
            return it == updates.updates().end() ? nullptr : &*it;
        };
        ASSERT_NE(named("Feedy"), nullptr);
        ASSERT_NE(named("Plain"), nullptr);
        EXPECT_EQ(named("Feedy")->newVersion, "2.0");
        EXPECT_TRUE(updates.isSelected(*named("Feedy")));
        EXPECT_FALSE(updates.isSelectable(*named("Plain"))) << "a plain http download is never installed";
        EXPECT_EQ(rowText(window, "Plain", "actionKey"), qtTrId("updates.action.open"));

        QQuickItem* plainRow = find(window, "updateRow-Plain");
        ASSERT_NE(plainRow, nullptr);
        plainRow->forceActiveFocus();
        QTest::keyClick(window, Qt::Key_I);
        waitFor([&] { return updates.ignoredCount() == 1; });
        click(window, find(window, "restoreKey"));
        waitFor([&] { return updates.ignoredCount() == 0; });

        find(window, "updateRow-Feedy")->forceActiveFocus();
        QTest::keyClick(window, Qt::Key_N);
        QmlTestSupport::settle(120);
        EXPECT_TRUE(find(window, "notesText")->property("text").toString().contains("Faster start"));
        QmlTestSupport::saveScreenshot(*window, shot + "2-notes");
        click(window, find(window, "closeNotesKey"));

        click(window, find(window, "installAllKey"));
        click(window, find(window, "confirmInstallKey"));
        waitFor([&] { return !updates.isBusy(); });
        QmlTestSupport::saveScreenshot(*window, shot + "3-failed");
        EXPECT_EQ(updates.state(*named("Feedy")).kind, UpdatesModel::RowState::Kind::failed);
        EXPECT_EQ(rowText(window, "Feedy", "stateText"), qtTrId("updates.failure.download"));
        window->close();
    }
    EXPECT_EQ(TestSupport::readText(apps / "Feedy.app/Contents/Info.plist"), feedyPlist) << "the installed app is untouched";
    EXPECT_EQ(TestSupport::namesIn(apps), (std::vector<std::string>{"Feedy.app", "Plain.app"}))
        << "no incoming or backup copy stays";
    const QStringList seen = warnings.take();
    EXPECT_TRUE(seen.isEmpty()) << seen.join('\n').toStdString();
    std::filesystem::remove_all(apps);
}

} // namespace

TEST(UpdatesChannelWindow, FeedUpdatesFromALocalServerFailClosedAndLeaveTheAppAsItWas) {
    QmlTestSupport::useLanguage("en");
    runFeedUpdates("en");
}

TEST(UpdatesChannelWindow, FeedUpdatesInPortuguese) {
    QmlTestSupport::inPortugueseProcess([] { runFeedUpdates("pt-BR"); });
}

TEST(UpdatesChannelWindow, AFlatpakUpdateIsFoundConfirmedAndInstalled) {
    REQUIRE_FLATPAK(fixture);
    QmlTestSupport::useLanguage("en");
    runUpdatesChannel("en", *fixture);
}

// The engine's texts keep the language of their first use, so Portuguese gets a process of its own.
TEST(UpdatesChannelWindow, PortugueseInAProcessOfItsOwn) {
    QmlTestSupport::inPortugueseProcess([] {
        REQUIRE_FLATPAK(fixture);
        runUpdatesChannel("pt-BR", *fixture);
    });
}
