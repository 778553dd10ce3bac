#pragma once

#include "Modules/Shared/CleanDestination.hpp"
#include "Painel/PainelAccent.hpp"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <map>
#include <string>

// The settings the user makes once, under their fixed keys in the application's settings, each
// with its default when never written. The only reader and writer of those keys: the composition
// root makes one and hands it to every model and view that shows a setting, so a change made in
// one place shows everywhere at once.
class Preferences : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The application model owns the preferences")
    Q_PROPERTY(
        bool showMenuBarAgent READ showMenuBarAgent WRITE setShowMenuBarAgent NOTIFY showMenuBarAgentChanged)
    Q_PROPERTY(bool launchAtLogin READ launchAtLogin WRITE setLaunchAtLogin NOTIFY launchAtLoginChanged)
    Q_PROPERTY(bool notifyOutdatedApps READ notifyOutdatedApps WRITE setNotifyOutdatedApps NOTIFY
                   notifyOutdatedAppsChanged)
    Q_PROPERTY(QString cleanDestination READ cleanDestinationRaw WRITE setCleanDestinationRaw NOTIFY
                   cleanDestinationChanged)
    Q_PROPERTY(QString accent READ accentRaw WRITE setAccentRaw NOTIFY accentChanged)
    Q_PROPERTY(bool onboardingDone READ onboardingDone WRITE setOnboardingDone NOTIFY onboardingDoneChanged)

public:
    static constexpr const char* showMenuBarAgentKey = "showMenuBarAgent";
    static constexpr const char* launchAtLoginKey = "launchAtLogin";
    static constexpr const char* notifyOutdatedAppsKey = "notifyOutdatedApps";
    static constexpr const char* cleanDestinationKey = "cleanDestination";
    static constexpr const char* accentKey = "accent";
    static constexpr const char* onboardingDoneKey = "onboardingDone";
    static constexpr const char* ignoredUpdateVersionsKey = "updates.ignoredVersions";
    static constexpr const char* updatesLastCheckedKey = "updates.lastChecked";

    explicit Preferences(QObject* parent = nullptr);

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
    // An absent or unknown stored value reads as trash.
    CleanDestination cleanDestination() const;
    void setCleanDestination(CleanDestination destination);
    QString cleanDestinationRaw() const { return CleanDestinations::rawValue(cleanDestination()); }
    void setCleanDestinationRaw(const QString& raw);
    // An absent or unknown stored value reads as orange.
    PainelAccent accent() const;
    void setAccent(PainelAccent accent);
    QString accentRaw() const { return PainelAccents::rawValue(accent()); }
    void setAccentRaw(const QString& raw);
    bool onboardingDone() const;
    void setOnboardingDone(bool done);
    // Ignore key -> ignored version.
    std::map<std::string, std::string> ignoredUpdateVersions() const;
    void setIgnoredUpdateVersions(const std::map<std::string, std::string>& versions);
    // Invalid when never checked.
    QDateTime updatesLastChecked() const;
    void setUpdatesLastChecked(const QDateTime& when);

signals:
    void showMenuBarAgentChanged();
    void launchAtLoginChanged();
    void notifyOutdatedAppsChanged();
    void cleanDestinationChanged();
    void accentChanged();
    void onboardingDoneChanged();

private:
    // Stores `value` under `key` and tells `changed` when it differs from what was there.
    void write(const char* key, const QVariant& value, void (Preferences::*changed)());
};
