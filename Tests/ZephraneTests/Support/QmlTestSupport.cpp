#include "Support/QmlTestSupport.hpp"

#include "App/AppLanguage.hpp"
#include "App/MainWindow.hpp"
#include "CleanerCore/Trash/TrashInfo.hpp"

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QMutex>
#include <QProcess>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <gtest/gtest.h>

#include <fstream>

namespace QmlTestSupport {
namespace {

QMutex mutex;
QStringList collected;
QtMessageHandler previous = nullptr;

void collect(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    // The offscreen platform says this of every window; it is not the application's fault.
    const bool platformNoise = message.contains(QLatin1String("does not support propagateSizeHints")) ||
                               message.contains(QLatin1String("does not support raise()"));
    if (!platformNoise && (type == QtWarningMsg || type == QtCriticalMsg || type == QtFatalMsg)) {
        QMutexLocker lock(&mutex);
        collected.append(message);
    }
    if (previous)
        previous(type, context, message);
}

} // namespace

WarningCollector::WarningCollector() {
    QMutexLocker lock(&mutex);
    collected.clear();
    previous = qInstallMessageHandler(collect);
}

WarningCollector::~WarningCollector() { qInstallMessageHandler(previous); }

QStringList WarningCollector::take() {
    QMutexLocker lock(&mutex);
    QStringList out;
    out.swap(collected);
    return out;
}

void WarningCollector::expectNone(const QString& context) {
    const QStringList seen = take();
    EXPECT_TRUE(seen.isEmpty()) << context.toStdString() << seen.join('\n').toStdString();
}

void settle(int milliseconds) {
    QCoreApplication::processEvents();
    QTest::qWait(milliseconds);
}

QString saveScreenshot(QQuickWindow& window, const QString& name) {
    QDir().mkpath(QStringLiteral(ZEPHRANE_SCREENSHOT_DIR));
    const QString path = QStringLiteral(ZEPHRANE_SCREENSHOT_DIR "/%1.png").arg(name);
    window.grabWindow().save(path);
    return path;
}

void useLanguage(const QString& localization) {
    AppLanguages::install(*QCoreApplication::instance(), localization);
}

QQuickItem* findItem(QQuickItem* root, const QString& name, bool visibleOnly) {
    if (root->objectName() == name && (!visibleOnly || root->isVisible()))
        return root;
    for (QQuickItem* child : root->childItems())
        if (QQuickItem* found = findItem(child, name, visibleOnly))
            return found;
    return nullptr;
}

QQuickWindow* showMainWindow(QQmlApplicationEngine& engine, AppModel& model) {
    QQuickWindow* window = MainWindow::load(engine, model);
    EXPECT_NE(window, nullptr);
    if (window != nullptr) {
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window));
    }
    return window;
}

QQuickItem* find(QQuickWindow* window, const QString& name) {
    QQuickItem* item = findItem(window->contentItem(), name, true);
    EXPECT_NE(item, nullptr) << name.toStdString();
    return item;
}

bool shown(QQuickWindow* window, const QString& name) {
    return findItem(window->contentItem(), name, true) != nullptr;
}

void press(QQuickWindow* window, QQuickItem* item) {
    ASSERT_NE(item, nullptr);
    const QPointF centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
    QTest::mouseClick(window, Qt::LeftButton, Qt::NoModifier, centre.toPoint());
}

void click(QQuickWindow* window, QQuickItem* item, int settleMilliseconds) {
    press(window, item);
    settle(settleMilliseconds);
}

void waitFor(const std::function<bool()>& condition, int milliseconds, int settleMilliseconds) {
    ASSERT_TRUE(QTest::qWaitFor(condition, milliseconds));
    settle(settleMilliseconds);
}

std::filesystem::path testHome() {
    const std::filesystem::path home = QDir::homePath().toStdString();
    if (home.string().rfind(std::filesystem::temp_directory_path().string(), 0) != 0)
        std::abort(); // never anywhere near a real home
    return home;
}

std::filesystem::path homeTrash() {
    return std::filesystem::path(qEnvironmentVariable("XDG_DATA_HOME").toStdString()) / "Trash";
}

std::filesystem::path trashed(const std::filesystem::path& trash, const std::string& name, std::size_t bytes) {
    std::filesystem::create_directories(trash / "files");
    std::filesystem::create_directories(trash / "info");
    const std::filesystem::path item = trash / "files" / name;
    std::ofstream(item) << std::string(bytes, 'x');
    std::ofstream(trash / "info" / CleanerCore::TrashInfo::fileName(name))
        << "[Trash Info]\nPath=/somewhere/" << name << "\nDeletionDate=2026-01-05T10:00:00\n";
    return item;
}

void inPortugueseProcess(const std::function<void()>& run) {
    constexpr const char* childVariable = "ZEPHRANE_TEST_IN_PORTUGUESE";
    if (qEnvironmentVariableIsSet(childVariable)) {
        useLanguage("pt-BR");
        run();
        useLanguage("en");
        return;
    }
    const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(childVariable, "1");
    child.setProcessEnvironment(environment);
    child.setProcessChannelMode(QProcess::MergedChannels);
    child.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("--gtest_filter=%1.%2").arg(test->test_suite_name(), test->name())});
    ASSERT_TRUE(child.waitForFinished(300000));
    EXPECT_EQ(child.exitCode(), 0) << child.readAll().toStdString();
}

void finish(const QFuture<void>& future) {
    ASSERT_TRUE(finishes(future));
    QCoreApplication::processEvents();
}

bool finishes(const QFuture<void>& future, int milliseconds) {
    return QTest::qWaitFor([&] { return future.isFinished(); }, milliseconds);
}

AnnouncementLog::AnnouncementLog()
    : previous(Announcer::installSink([this](const QString& text) { said.append(text); })) {}

AnnouncementLog::~AnnouncementLog() {
    Announcer::installSink(previous);
}

} // namespace QmlTestSupport
