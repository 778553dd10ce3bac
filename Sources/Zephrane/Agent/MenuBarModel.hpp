#pragma once

#include "CleanerCore/Apps/RunningAppInfo.hpp"
#include "CleanerCore/System/MemoryHog.hpp"
#include "CleanerCore/System/MemoryHogs.hpp"
#include "CleanerCore/System/SystemSampler.hpp"
#include "CleanerCore/System/SystemSnapshot.hpp"

#include <QObject>
#include <QTimer>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

// What the tray popup shows: a reading of the machine, the three largest memory users and the one
// of them that asks for confirmation before it is quit. Samples only while `onScreen` is true: a
// hidden or covered popup runs no timer at all, and each uncovering starts over with a new sampler,
// so the load and network rates wait one interval again.
class MenuBarModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The tray agent owns its model")
    Q_PROPERTY(bool onScreen READ onScreen WRITE setOnScreen NOTIFY liveChanged)
    Q_PROPERTY(bool isLive READ isLive NOTIFY liveChanged)
    Q_PROPERTY(bool hasRates READ hasRates NOTIFY snapshotChanged)
    Q_PROPERTY(bool diskAlmostFull READ diskAlmostFull NOTIFY snapshotChanged)
    Q_PROPERTY(double cpuUsage READ cpuUsage NOTIFY snapshotChanged)
    Q_PROPERTY(int cpuCores READ cpuCores NOTIFY snapshotChanged)
    Q_PROPERTY(double memoryUsed READ memoryUsed NOTIFY snapshotChanged)
    Q_PROPERTY(double memoryTotal READ memoryTotal NOTIFY snapshotChanged)
    Q_PROPERTY(double memoryFraction READ memoryFraction NOTIFY snapshotChanged)
    Q_PROPERTY(double diskFree READ diskFree NOTIFY snapshotChanged)
    Q_PROPERTY(double diskUsedFraction READ diskUsedFraction NOTIFY snapshotChanged)
    Q_PROPERTY(double downloadRate READ downloadRate NOTIFY snapshotChanged)
    Q_PROPERTY(double uploadRate READ uploadRate NOTIFY snapshotChanged)
    Q_PROPERTY(bool hasBattery READ hasBattery NOTIFY snapshotChanged)
    Q_PROPERTY(double batteryLevel READ batteryLevel NOTIFY snapshotChanged)
    Q_PROPERTY(bool batteryCharging READ batteryCharging NOTIFY snapshotChanged)
    Q_PROPERTY(QVariantList hogs READ hogList NOTIFY hogsChanged)
    Q_PROPERTY(int pendingQuit READ pendingQuit WRITE setPendingQuit NOTIFY pendingQuitChanged)

public:
    using Apps = std::function<std::vector<CleanerCore::RunningAppInfo>()>;

    // Where readings and running applications come from; tests point these at their own.
    struct Sources {
        CleanerCore::SystemSampler::Sources machine;
        Apps apps;
        CleanerCore::MemoryHogs::Footprint footprint;
        int intervalMilliseconds = 2000;

        static Sources ofThisMachine();
    };

    explicit MenuBarModel(QObject* parent = nullptr);
    explicit MenuBarModel(Sources sources, QObject* parent = nullptr);

    bool onScreen() const { return timer.isActive(); }
    // True starts the loop (a picture at once, rates one interval later); false stops it, drops a
    // pending quit and leaves a plain summary behind.
    void setOnScreen(bool visible);
    bool isLive() const { return timer.isActive(); }

    const CleanerCore::SystemSnapshot& snapshot() const { return current; }
    bool hasRates() const { return rates; }
    bool diskAlmostFull() const;
    double cpuUsage() const { return current.cpuUsage; }
    int cpuCores() const { return current.cpuCores; }
    double memoryUsed() const { return double(current.memoryUsed); }
    double memoryTotal() const { return double(current.memoryTotal); }
    double memoryFraction() const { return current.memoryFraction(); }
    double diskFree() const { return double(current.diskFree); }
    double diskUsedFraction() const { return current.diskUsedFraction(); }
    double downloadRate() const { return current.downloadBytesPerSecond; }
    double uploadRate() const { return current.uploadBytesPerSecond; }
    bool hasBattery() const { return current.battery.has_value(); }
    double batteryLevel() const { return current.battery ? current.battery->level : 0; }
    bool batteryCharging() const { return current.battery && current.battery->isCharging; }

    const std::vector<CleanerCore::MemoryHog>& hogs() const { return hogRows; }
    QVariantList hogList() const;
    // 0 when no row asks.
    int pendingQuit() const { return pending; }
    void setPendingQuit(int pid);

    // Asks the hog of that pid to quit, after checking the process is still that application.
    Q_INVOKABLE void quit(int pid);

    // The tray's tooltip and accessible name: free disk space in words.
    QString summaryText() const;

signals:
    void liveChanged();
    void snapshotChanged();
    void hogsChanged();
    void pendingQuitChanged();

private:
    void tick();
    void refreshHogs();
    void setSnapshot(const CleanerCore::SystemSnapshot& snapshot, bool withRates);

    Sources sources;
    QTimer timer;
    std::unique_ptr<CleanerCore::SystemSampler> sampler;
    CleanerCore::SystemSnapshot current;
    bool rates = false;
    std::vector<CleanerCore::MemoryHog> hogRows;
    int pending = 0;
};
