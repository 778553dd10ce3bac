#pragma once

#include "App/Announcer.hpp"

#include <QFuture>
#include <QString>
#include <QStringList>

#include <filesystem>
#include <functional>

class AppModel;
class QQmlApplicationEngine;
class QQuickItem;
class QQuickWindow;

namespace QmlTestSupport {

// Collects every warning and critical message (QML binding errors, missing types...) from the
// moment it is made; tests fail when any was seen.
class WarningCollector {
public:
    WarningCollector();
    ~WarningCollector();
    WarningCollector(const WarningCollector&) = delete;
    WarningCollector& operator=(const WarningCollector&) = delete;

    QStringList take();
    // Fails the test if any message came since the last look, `context` leading the report.
    void expectNone(const QString& context = {});
};

// Lets animations and pending layouts run for a moment.
void settle(int milliseconds = 50);

// Renders the window and writes build/screenshots/<name>.png for people to look at.
QString saveScreenshot(QQuickWindow& window, const QString& name);

// Switches the interface and engine language (en or pt-BR) for the tests that follow.
void useLanguage(const QString& localization);

// The first item of that name below `root`, searched through the visual tree (loaded screens are
// not QObject children of their loaders); with `visibleOnly`, the first visible one.
QQuickItem* findItem(QQuickItem* root, const QString& name, bool visibleOnly = false);

// Waits for the future, events running meanwhile (the test fails after 20 s), then delivers what it posted.
void finish(const QFuture<void>& future);

// Whether the future finishes within the time, events running meanwhile.
bool finishes(const QFuture<void>& future, int milliseconds = 20000);

// The main window over `model`, shown; null (and the test fails) when it does not load.
QQuickWindow* showMainWindow(QQmlApplicationEngine& engine, AppModel& model);

// Window tests drive the real window by name, the way a user would.
// The visible item of that name in the window; the test fails when there is none.
QQuickItem* find(QQuickWindow* window, const QString& name);
// Whether a visible item of that name is in the window.
bool shown(QQuickWindow* window, const QString& name);
// A click in the middle of the item, with no time for events after it.
void press(QQuickWindow* window, QQuickItem* item);
// A click in the middle of the item, then a moment for what it starts.
void click(QQuickWindow* window, QQuickItem* item, int settleMilliseconds = 50);
// Lets events run until `condition` holds (the test fails if it never does), then lets the window settle.
void waitFor(const std::function<bool()>& condition, int milliseconds = 20000, int settleMilliseconds = 120);

// The test program's home, which main() made temporary; fixtures are built right in it.
std::filesystem::path testHome();
// The freedesktop trash of that home.
std::filesystem::path homeTrash();
// Puts `name` in the trash folder `trash` the way a file manager does: the item and its info file.
std::filesystem::path trashed(const std::filesystem::path& trash, const std::string& name, std::size_t bytes);

// Runs `run` in Portuguese, in a child process of this test program running only the current
// test: the engine's texts keep the language of their first use.
void inPortugueseProcess(const std::function<void()>& run);

// Records what the Announcer says while it lives.
class AnnouncementLog {
public:
    AnnouncementLog();
    ~AnnouncementLog();
    AnnouncementLog(const AnnouncementLog&) = delete;
    AnnouncementLog& operator=(const AnnouncementLog&) = delete;

    QStringList said;

private:
    Announcer::Sink previous;
};

} // namespace QmlTestSupport
