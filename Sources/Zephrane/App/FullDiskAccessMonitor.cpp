#include "App/FullDiskAccessMonitor.hpp"

#include "App/Announcer.hpp"
#include "App/FullDiskAccess.hpp"

#include <QDesktopServices>
#include <QJSEngine>

// Starts from what the probes say now, so that a grant held since before launch is not announced
// as news when the first view looks.
FullDiskAccessMonitor::FullDiskAccessMonitor(QObject* parent)
    : QObject(parent), probeList(FullDiskAccess::probes()), granted(FullDiskAccess::isGranted(probeList)) {
    timer.setInterval(intervalMilliseconds);
    connect(&timer, &QTimer::timeout, this, &FullDiskAccessMonitor::poll);
}

FullDiskAccessMonitor& FullDiskAccessMonitor::shared() {
    static FullDiskAccessMonitor* instance = new FullDiskAccessMonitor;
    return *instance;
}

FullDiskAccessMonitor* FullDiskAccessMonitor::create(QQmlEngine*, QJSEngine*) {
    FullDiskAccessMonitor* instance = &shared();
    // Every engine shares it; none may delete it when it goes.
    QJSEngine::setObjectOwnership(instance, QJSEngine::CppOwnership);
    return instance;
}

bool FullDiskAccessMonitor::refresh() {
    const bool now = FullDiskAccess::isGranted(probeList);
    if (now == granted)
        return now;
    granted = now;
    if (now)
        Announcer::announce(qtTrId("fda.announce.granted"));
    emit isGrantedChanged();
    return now;
}

bool FullDiskAccessMonitor::check() {
    const bool now = refresh();
    if (!now)
        Announcer::announce(qtTrId("fda.announce.stillOff"));
    return now;
}

void FullDiskAccessMonitor::watch() {
    ++watchers;
    poll();
}

void FullDiskAccessMonitor::stopWatching() {
    if (watchers > 0)
        --watchers;
    if (watchers == 0 && timer.isActive()) {
        timer.stop();
        emit watchingChanged();
    }
}

void FullDiskAccessMonitor::poll() {
    const bool wasActive = timer.isActive();
    if (refresh() || watchers == 0)
        timer.stop();
    else if (!wasActive)
        timer.start();
    if (timer.isActive() != wasActive)
        emit watchingChanged();
}

void FullDiskAccessMonitor::openSettings() const {
    QDesktopServices::openUrl(FullDiskAccess::settingsURL());
}

void FullDiskAccessMonitor::setProbes(const QStringList& replacement) {
    probeList = replacement;
}

void FullDiskAccessMonitor::resetForTesting(bool wasGranted) {
    watchers = 0;
    timer.stop();
    granted = wasGranted;
}
