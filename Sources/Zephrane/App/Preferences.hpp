#pragma once

#include "Modules/Shared/CleanDestination.hpp"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

// The settings the user makes once, under their fixed keys in the application's settings, each
// with its default when never written. Every instance reads the same store and every instance
// notifies when any of them writes, so a view, the tray agent and a channel never disagree.
class Preferences : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool showMenuBarAgent READ showMenuBarAgent WRITE setShowMenuBarAgent NOTIFY changed)
    Q_PROPERTY(bool launchAtLogin READ launchAtLogin WRITE setLaunchAtLogin NOTIFY changed)
    Q_PROPERTY(bool notifyOutdatedApps READ notifyOutdatedApps WRITE setNotifyOutdatedApps NOTIFY changed)
    Q_PROPERTY(QString cleanDestination READ cleanDestination WRITE setCleanDestination NOTIFY changed)
    Q_PROPERTY(QString accent READ accent WRITE setAccent NOTIFY changed)
    Q_PROPERTY(bool onboardingDone READ onboardingDone WRITE setOnboardingDone NOTIFY changed)

public:
    static constexpr const char* showMenuBarAgentKey = "showMenuBarAgent";
    static constexpr const char* launchAtLoginKey = "launchAtLogin";
    static constexpr const char* notifyOutdatedAppsKey = "notifyOutdatedApps";
    static constexpr const char* cleanDestinationKey = CleanDestinations::settingsKey;
    static constexpr const char* accentKey = "accent";
    static constexpr const char* onboardingDoneKey = "onboardingDone";

    explicit Preferences(QObject* parent = nullptr);
    ~Preferences() override;

    bool showMenuBarAgent() const;
    void setShowMenuBarAgent(bool on);
    // What the login item was last found to be, not what was last asked for.
    bool launchAtLogin() const;
    // Asks the desktop for the login item and stores what it reports back.
    void setLaunchAtLogin(bool on);
    // Reads the login item anew, in case it was changed outside the program.
    Q_INVOKABLE void refreshLaunchAtLogin();
    bool notifyOutdatedApps() const;
    void setNotifyOutdatedApps(bool on);
    // "trash" or "delete"; anything else stored reads as "trash".
    QString cleanDestination() const;
    void setCleanDestination(const QString& raw);
    // A raw accent ("orange", "lime", "blue"); anything else stored reads as "orange".
    QString accent() const;
    void setAccent(const QString& raw);
    bool onboardingDone() const;
    void setOnboardingDone(bool done);

signals:
    void changed();

private:
    static void write(const char* key, const QVariant& value);
};
