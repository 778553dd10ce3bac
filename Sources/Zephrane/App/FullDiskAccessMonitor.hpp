#pragma once

#include <QObject>
#include <QStringList>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <functional>

class QJSEngine;
class QQmlEngine;

// Watches the disk-access grant for every view at once. The grant is given outside the process,
// so while a view that shows it is open and the grant is missing, it is polled every 2 seconds.
class FullDiskAccessMonitor : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool isGranted READ isGranted NOTIFY isGrantedChanged)
    Q_PROPERTY(bool watching READ watching NOTIFY watchingChanged)

public:
    static constexpr int intervalMilliseconds = 2'000;

    // Made on first use; lives as long as the process.
    static FullDiskAccessMonitor& shared();
    static FullDiskAccessMonitor* create(QQmlEngine*, QJSEngine*);

    bool isGranted() const { return granted; }
    bool watching() const { return timer.isActive(); }

    // Looks at the probes now; announces a fresh grant; notifies only on a change.
    Q_INVOKABLE bool refresh();
    // The banner's "check" key: a refresh that says so when the grant is still missing.
    Q_INVOKABLE bool check();
    // Each view that shows the grant watches while it lives: watch() when it appears,
    // stopWatching() when it goes. Polling ends at the grant or when the last view has gone.
    Q_INVOKABLE void watch();
    Q_INVOKABLE void stopWatching();
    Q_INVOKABLE void openSettings() const;

    // Tests point the monitor at their own probes and start it over, not granted.
    void setProbes(const QStringList& replacement);
    void resetForTesting(bool wasGranted = false);

signals:
    void isGrantedChanged();
    void watchingChanged();

private:
    explicit FullDiskAccessMonitor(QObject* parent = nullptr);
    void poll();

    QStringList probeList;
    bool granted = false;
    int watchers = 0;
    QTimer timer;
};
