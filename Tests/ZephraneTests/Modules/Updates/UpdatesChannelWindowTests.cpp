#include "App/AppModel.hpp"
#include "App/MainWindow.hpp"
#include "FlatpakFixture.hpp"
#include "Modules/Updates/UpdatesModel.hpp"
#include "Support/QmlTestSupport.hpp"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSettings>
#include <QTest>

#include <gtest/gtest.h>

namespace {

using QmlTestSupport::click;
using QmlTestSupport::find;
using QmlTestSupport::waitFor;
using TestSupport::FlatpakFixture;

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
        waitFor([&] { return !updates.isBusy(); });
        QmlTestSupport::settle(120);
        QmlTestSupport::saveScreenshot(*window, shot + "5-installed");
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

} // namespace

TEST(UpdatesChannelWindow, AFlatpakUpdateIsFoundConfirmedAndInstalled) {
    FlatpakFixture* fixture = FlatpakFixture::shared();
    if (fixture == nullptr)
        GTEST_SKIP() << FlatpakFixture::unavailable();
    QmlTestSupport::useLanguage("en");
    runUpdatesChannel("en", *fixture);
}

// The engine's texts keep the language of their first use, so Portuguese gets a process of its own.
TEST(UpdatesChannelWindow, PortugueseInAProcessOfItsOwn) {
    QmlTestSupport::inPortugueseProcess([] {
        FlatpakFixture* fixture = FlatpakFixture::shared();
        if (fixture == nullptr)
            GTEST_SKIP() << FlatpakFixture::unavailable();
        runUpdatesChannel("pt-BR", *fixture);
    });
}
