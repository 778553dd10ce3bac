#include "Support/QmlTestSupport.hpp"

#include "App/AppLanguage.hpp"

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QMutex>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include <gtest/gtest.h>

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

void click(QQuickWindow& window, const QQuickItem& item) {
    const QPointF centre = item.mapToScene(QPointF(item.width() / 2, item.height() / 2));
    QTest::mouseClick(&window, Qt::LeftButton, Qt::NoModifier, centre.toPoint());
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
