#include "App/Announcer.hpp"
#include "App/Preferences.hpp"
#include "Modules/Updates/UpdateList.hpp"
#include "Modules/Updates/UpdatesModel.hpp"

#include "Support/QmlTestSupport.hpp"
#include <QAbstractItemModelTester>
#include <QSettings>
#include <QTest>
#include <QTimeZone>

#include <gtest/gtest.h>

#include <atomic>
#include <mutex>
#include <thread>

using CleanerCore::AppUpdate;
using CleanerCore::AppUpdateInstaller;
using CleanerCore::AppUpdateSource;
using CleanerCore::URL;
using Kind = UpdatesModel::RowState::Kind;
using Failure = AppUpdateInstaller::Failure;

namespace {

using QmlTestSupport::finish;

AppUpdate offer(std::string name, AppUpdateSource source, std::string version, std::string download = {}) {
    AppUpdate update;
    update.appURL = URL::file("/Applications/" + name + ".app");
    update.name = name;
    update.bundleID = "org.test." + name;
    update.currentVersion = "1.0";
    update.newVersion = std::move(version);
    update.source = source;
    if (!download.empty())
        update.downloadURL = URL::parse(download);
    return update;
}

// A canned engine: what each source offers, what the installer does per app (a failure to throw,
// or nothing for success), which apps run, and everything the model opened, copied and installed.
struct Updates : testing::Test {
    std::map<AppUpdateSource, std::vector<AppUpdate>> offered;
    std::map<std::string, std::optional<Failure>> outcome; // by name
    std::set<std::string> running;
    std::atomic<bool> holdInstall{false}; // the installer waits while set
    std::vector<std::string> installedOrder;
    std::mutex mutex;
    std::vector<QUrl> opened;
    std::vector<QString> copied;
    std::vector<QString> spoken;
    QDateTime now = QDateTime(QDate(2026, 3, 1), QTime(12, 0), Qt::UTC);
    Preferences preferences;
    std::unique_ptr<UpdatesModel> model;
    Announcer::Sink previousSink;

    UpdatesModel::Engine engine() {
        UpdatesModel::Engine canned;
        canned.apps = [] { return std::vector<CleanerCore::InstalledApp>(3); };
        canned.find = [this](AppUpdateSource source, const auto&, std::stop_token) {
            return offered[source];
        };
        canned.install = [this](const AppUpdate& update, const std::function<void(UpdatesModel::Stage)>& progress,
                                std::stop_token stop) {
            progress(UpdatesModel::Stage::verifying);
            while (holdInstall)
                std::this_thread::sleep_for(std::chrono::milliseconds(2));
            if (stop.stop_requested()) // as the installer does before its swap
                throw AppUpdateInstaller::OperationCancelled();
            {
                std::lock_guard lock(mutex);
                installedOrder.push_back(update.name);
            }
            if (auto failure = outcome[update.name])
                throw *failure;
        };
        canned.isRunning = [this](const std::string& id) { return running.contains(id); };
        canned.openURL = [this](const QUrl& url) { opened.push_back(url); };
        canned.copyText = [this](const QString& text) { copied.push_back(text); };
        canned.now = [this] { return now; };
        return canned;
    }

    void SetUp() override {
        QSettings().clear();
        previousSink = Announcer::installSink([this](const QString& text) { spoken.push_back(text); });
        offered[AppUpdateSource::sparkle] = {
            offer("Zeta", AppUpdateSource::sparkle, "2.0", "https://x.test/z.zip"),
            offer("Beta", AppUpdateSource::sparkle, "3.0", "https://x.test/b.dmg"),
            offer("Pkg", AppUpdateSource::sparkle, "5.0", "https://x.test/p.pkg")};
        offered[AppUpdateSource::homebrew] = {offer("Brewed", AppUpdateSource::homebrew, "4.0")};
        offered[AppUpdateSource::homebrew][0].caskToken = "brewed";
        offered[AppUpdateSource::appStore] = {offer("Stored", AppUpdateSource::appStore, "9.0")};
        remake();
    }
    void TearDown() override {
        model.reset();
        Announcer::installSink(previousSink);
        QSettings().clear();
    }
    void remake() { model = std::make_unique<UpdatesModel>(preferences, engine()); }

    const AppUpdate& row(const std::string& name) const {
        return *std::ranges::find(model->updates(), name, &AppUpdate::name);
    }
    Kind state(const std::string& name) const { return model->state(row(name)).kind; }
    std::vector<std::string> visibleNames() const {
        std::vector<std::string> names;
        for (const AppUpdate& each : model->visibleUpdates())
            names.push_back(each.name);
        return names;
    }
};

} // namespace

TEST_F(Updates, AScanJoinsTheSourcesSortedAndTicksOnlyWhatInstallsHere) {
    QAbstractItemModelTester tester{model->rowList(), QAbstractItemModelTester::FailureReportingMode::Fatal};
    EXPECT_FALSE(model->pendingCount().has_value()) << "before any scan there is no count, not zero";
    EXPECT_FALSE(model->pendingCountValue().isValid());
    EXPECT_EQ(model->checkedText(), qtTrId("updates.checked.never"));

    finish(model->scan());
    EXPECT_EQ(visibleNames(), (std::vector<std::string>{"Beta", "Brewed", "Pkg", "Stored", "Zeta"}));
    EXPECT_EQ(model->pendingCount(), 5);
    EXPECT_EQ(model->count(AppUpdateSource::sparkle), 3);
    EXPECT_EQ(model->rowList()->rowCount(), 5);
    EXPECT_TRUE(model->isSelected(row("Beta")));
    EXPECT_TRUE(model->isSelected(row("Zeta")));
    for (const char* name : {"Brewed", "Stored", "Pkg"}) {
        EXPECT_FALSE(model->isSelectable(row(name))) << name;
        model->setSelected(row(name), true);
        EXPECT_FALSE(model->isSelected(row(name))) << name;
    }
    EXPECT_EQ(row("Pkg").action(), CleanerCore::AppUpdateAction::openApp)
        << "a package download is not installed here";

    EXPECT_EQ(preferences.updatesLastChecked(), now);
    EXPECT_EQ(model->checkedText(), qtTrId("updates.checked.now"));
    now = now.addSecs(3 * 3600);
    EXPECT_TRUE(model->checkedText().contains(QStringLiteral("3"))) << model->checkedText().toStdString();
    remake();
    EXPECT_EQ(model->lastChecked(), now.addSecs(-3 * 3600)) << "the last check survives a restart";
}

TEST_F(Updates, IgnoringIsPerVersionStoredAndRestoreKeepsAbsentApps) {
    preferences.setIgnoredUpdateVersions({{"org.test.Gone", "1.5"}});
    remake();
    finish(model->scan());
    model->ignore(row("Zeta"));
    EXPECT_EQ(model->ignoredCount(), 1);
    EXPECT_FALSE(model->isSelected(row("Zeta")));
    EXPECT_EQ(std::ranges::count(visibleNames(), "Zeta"), 0);
    EXPECT_EQ(model->pendingCount(), 4);
    EXPECT_EQ(model->selectedCount(), 1);
    EXPECT_EQ(preferences.ignoredUpdateVersions().at("org.test.Zeta"), "2.0");

    remake(); // a new run reads what was ignored
    offered[AppUpdateSource::sparkle][0].newVersion = "2.1";
    finish(model->scan());
    EXPECT_EQ(std::ranges::count(visibleNames(), "Zeta"), 1) << "a later version shows again by itself";
    EXPECT_TRUE(model->isSelected(row("Zeta")));

    model->ignore(row("Zeta"));
    model->restoreIgnored();
    EXPECT_EQ(model->ignoredCount(), 0);
    const auto stored = preferences.ignoredUpdateVersions();
    EXPECT_FALSE(stored.contains("org.test.Zeta"));
    EXPECT_EQ(stored.at("org.test.Gone"), "1.5") << "ignored versions of apps not in the list stay";
}

TEST_F(Updates, ABatchGoesOnPastRunningAndFailingAppsInItsOrder) {
    offered[AppUpdateSource::sparkle].push_back(
        offer("Alpha", AppUpdateSource::sparkle, "2.0", "https://x.test/a.zip"));
    offered[AppUpdateSource::sparkle].push_back(
        offer("Gamma", AppUpdateSource::sparkle, "2.0", "https://x.test/g.zip"));
    offered[AppUpdateSource::sparkle].push_back(
        offer("Delta", AppUpdateSource::sparkle, "2.0", "https://x.test/d.zip"));
    running = {"org.test.Beta"};
    outcome["Gamma"] = Failure(Failure::Kind::signatureInvalid);
    outcome["Delta"] = Failure(Failure::Kind::appRunning);
    outcome["Zeta"] = Failure(Failure::Kind::commandFailed, "bsdtar: secret detail");
    finish(model->scan());
    EXPECT_EQ(model->selectedCount(), 5);

    model->requestInstallSelected();
    EXPECT_TRUE(model->installConfirming()) << "nothing starts before the confirmation";
    EXPECT_TRUE(installedOrder.empty());
    model->confirmInstall();
    EXPECT_TRUE(model->isBusy());
    EXPECT_FALSE(model->isSelectable(row("Alpha"))) << "no ticking while a batch runs";
    ASSERT_TRUE(QTest::qWaitFor([&] { return !model->isBusy(); }, 20000));

    EXPECT_EQ(installedOrder, (std::vector<std::string>{"Alpha", "Delta", "Gamma", "Zeta"}))
        << "one after the other in list order, and a running app's download is never begun";
    EXPECT_EQ(state("Alpha"), Kind::installed);
    EXPECT_FALSE(model->isSelected(row("Alpha"))) << "an installed app is not offered again";
    EXPECT_EQ(model->selectedCount(), 4);
    EXPECT_EQ(state("Beta"), Kind::needsQuit);
    EXPECT_EQ(state("Delta"), Kind::needsQuit);
    EXPECT_EQ(state("Gamma"), Kind::failed);
    EXPECT_EQ(model->state(row("Gamma")).failure, qtTrId("updates.failure.signature"));
    EXPECT_EQ(model->state(row("Zeta")).failure, qtTrId("updates.failure.download"));
    EXPECT_EQ(model->pendingCount(), 7) << "every visible update but the installed one";
    EXPECT_EQ(spoken.back(), qtTrId("updates.announce.finished").arg(5));

    finish(model->scan());
    for (const char* name : {"Alpha", "Beta", "Gamma"})
        EXPECT_EQ(state(name), Kind::idle) << "a new scan forgets " << name;
}

TEST_F(Updates, StoppingABatchAbandonsTheAppUnderWayAndBeginsNoOther) {
    offered[AppUpdateSource::sparkle].push_back(offer("Alpha", AppUpdateSource::sparkle, "2.0", "https://x.test/a.zip"));
    finish(model->scan());
    holdInstall = true;
    model->requestInstallSelected();
    model->confirmInstall();
    ASSERT_TRUE(QTest::qWaitFor([&] { return state("Alpha") == Kind::working; }, 20000));
    model->stopInstalling();
    EXPECT_TRUE(model->isStopping());
    EXPECT_EQ(model->installAllText(), qtTrId("updates.stopping"));
    holdInstall = false;
    ASSERT_TRUE(QTest::qWaitFor([&] { return !model->isBusy(); }, 20000));

    EXPECT_TRUE(installedOrder.empty()) << "the app under way never reached its swap";
    EXPECT_EQ(state("Alpha"), Kind::idle) << "an abandoned app reads as before the batch, not as failed";
    EXPECT_EQ(state("Zeta"), Kind::idle);
    EXPECT_TRUE(model->isSelected(row("Zeta"))) << "what was not begun stays ticked for later";
    EXPECT_FALSE(model->isStopping());
    EXPECT_EQ(spoken.back(), qtTrId("updates.announce.stopped").arg(0).arg(3));
}

TEST_F(Updates, RowsThatDoNotInstallOpenOrCopyInstead) {
    offered[AppUpdateSource::appStore].push_back(offer("Linked", AppUpdateSource::appStore, "2.0"));
    offered[AppUpdateSource::appStore].back().storeURL = URL::parse("https://apps.test/linked");
    finish(model->scan());

    model->perform(row("Brewed"));
    ASSERT_EQ(copied.size(), 1u);
    EXPECT_EQ(copied[0], QStringLiteral("brew upgrade --cask brewed"));
    EXPECT_EQ(spoken.back(), qtTrId("updates.announce.copied"));

    model->perform(row("Stored"));
    model->perform(row("Linked"));
    model->perform(row("Pkg"));
    ASSERT_EQ(opened.size(), 3u);
    EXPECT_EQ(opened[0], QUrl(QStringLiteral("macappstore://showUpdatesPage")))
        << "a store row without its page";
    EXPECT_EQ(opened[1], QUrl(QStringLiteral("https://apps.test/linked")));
    EXPECT_EQ(opened[2], QUrl::fromLocalFile(QStringLiteral("/Applications/Pkg.app")));
    EXPECT_TRUE(installedOrder.empty());
}

TEST(UpdatesDescribe, InstallerFailuresReadAsTheirOwnWordsAndTheRestAsADownloadFailure) {
    const auto words = [](auto error) { return UpdatesModel::describe(std::make_exception_ptr(error)); };
    EXPECT_EQ(words(Failure(Failure::Kind::swapFailed, "EXDEV")), qtTrId("updates.failure.swap"));
    EXPECT_EQ(words(Failure(Failure::Kind::teamMismatch)), qtTrId("updates.failure.team"));
    EXPECT_EQ(words(Failure(Failure::Kind::unsupportedArchive)), qtTrId("updates.failure.download"));
    EXPECT_EQ(words(std::runtime_error("timeout")), qtTrId("updates.failure.download"));
}
