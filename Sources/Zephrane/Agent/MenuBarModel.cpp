#include "Agent/MenuBarModel.hpp"

#include "App/Announcer.hpp"
#include "CleanerCore/Apps/AppInventory.hpp"
#include "CleanerCore/System/SystemStatus.hpp"
#include "Painel/ByteFormat.hpp"

#include <QVariantMap>

#include <algorithm>
#include <unistd.h>

using namespace CleanerCore;

namespace {

// The program's own identifier, never offered as a hog.
const std::optional<std::string> ownID = std::string("dev.tavrix.zephrane");

} // namespace

MenuBarModel::Sources MenuBarModel::Sources::ofThisMachine() {
    Sources sources;
    // Without the installed list: a hog needs no bundle path, only its scope's identifier.
    sources.apps = [] { return AppInventory::runningApps({}); };
    sources.footprint = MemoryHogs::footprintOf;
    return sources;
}

MenuBarModel::MenuBarModel(QObject* parent) : MenuBarModel(Sources::ofThisMachine(), parent) {}

MenuBarModel::MenuBarModel(Sources sources, QObject* parent)
    : QObject(parent), sources(std::move(sources)), current(SystemSampler::summary(this->sources.machine)) {
    if (!this->sources.footprint)
        this->sources.footprint = MemoryHogs::footprintOf;
    timer.setInterval(this->sources.intervalMilliseconds);
    timer.setTimerType(Qt::CoarseTimer);
    connect(&timer, &QTimer::timeout, this, &MenuBarModel::tick);
}

void MenuBarModel::setOnScreen(bool visible) {
    if (visible == timer.isActive())
        return;
    if (visible) {
        setSnapshot(SystemSampler::summary(sources.machine), false);
        // A fresh sampler, primed at once, so the first rates come from one whole interval.
        sampler = std::make_unique<SystemSampler>(sources.machine);
        sampler->sample();
        refreshHogs();
        timer.start();
    } else {
        timer.stop();
        sampler.reset();
        setPendingQuit(0);
        setSnapshot(SystemSampler::summary(sources.machine), false);
    }
    emit liveChanged();
}

void MenuBarModel::tick() {
    if (!sampler)
        return;
    setSnapshot(sampler->sample(), true);
    refreshHogs();
}

void MenuBarModel::setSnapshot(const SystemSnapshot& snapshot, bool withRates) {
    current = snapshot;
    rates = withRates;
    emit snapshotChanged();
}

bool MenuBarModel::diskAlmostFull() const { return systemStatus(current) == SystemStatus::diskAlmostFull; }

void MenuBarModel::refreshHogs() {
    const std::vector<RunningAppInfo> apps = sources.apps ? sources.apps() : std::vector<RunningAppInfo>{};
    std::vector<MemoryHog> top = MemoryHogs::top(apps, 3, ::getpid(), ownID, sources.footprint);
    if (top != hogRows) {
        hogRows = std::move(top);
        emit hogsChanged();
    }
    const bool stillListed =
        std::any_of(hogRows.begin(), hogRows.end(), [this](const MemoryHog& hog) { return hog.id() == pending; });
    if (pending != 0 && !stillListed)
        setPendingQuit(0);
}

QVariantList MenuBarModel::hogList() const {
    QVariantList rows;
    for (const MemoryHog& hog : hogRows)
        rows.append(QVariantMap{{QStringLiteral("pid"), hog.id()},
                                {QStringLiteral("name"), QString::fromStdString(hog.app.name)},
                                {QStringLiteral("bytes"), double(hog.bytes)}});
    return rows;
}

void MenuBarModel::setPendingQuit(int pid) {
    if (pid == pending)
        return;
    pending = pid;
    emit pendingQuitChanged();
}

void MenuBarModel::quit(int pid) {
    const auto hog = std::find_if(hogRows.begin(), hogRows.end(), [pid](const MemoryHog& each) { return each.id() == pid; });
    if (hog == hogRows.end())
        return;
    // A fresh record: the pid may belong to another program by now.
    std::optional<RunningAppInfo> now;
    if (sources.apps) {
        for (RunningAppInfo& app : sources.apps())
            if (app.pid == pid)
                now = std::move(app);
    }
    if (MemoryHogs::quit(*hog, now, ::getpid(), ownID))
        Announcer::announce(qtTrId("menubar.hogs.announce.quitting").arg(QString::fromStdString(hog->app.name)));
    setPendingQuit(0);
}

QString MenuBarModel::summaryText() const {
    return qtTrId("menubar.item.summary").arg(ByteFormat::text(double(current.diskFree)));
}
