#include "App/Preferences.hpp"

#include "App/LaunchAtLogin.hpp"
#include "Modules/Shared/CleanDestination.hpp"
#include "Painel/PainelAccent.hpp"

#include <QList>
#include <QSettings>

namespace {

// Every live instance, so that a write through one wakes all (GUI thread only).
QList<Preferences*>& instances() {
    static QList<Preferences*> all;
    return all;
}

bool flag(const char* key, bool fallback) {
    return QSettings().value(QLatin1String(key), fallback).toBool();
}

} // namespace

Preferences::Preferences(QObject* parent) : QObject(parent) {
    instances().append(this);
}

Preferences::~Preferences() {
    instances().removeOne(this);
}

void Preferences::write(const char* key, const QVariant& value) {
    QSettings settings;
    if (settings.value(QLatin1String(key)) == value && settings.contains(QLatin1String(key)))
        return;
    settings.setValue(QLatin1String(key), value);
    for (Preferences* each : instances())
        emit each->changed();
}

bool Preferences::showMenuBarAgent() const {
    return flag(showMenuBarAgentKey, true);
}
void Preferences::setShowMenuBarAgent(bool on) {
    write(showMenuBarAgentKey, on);
}

bool Preferences::launchAtLogin() const {
    return flag(launchAtLoginKey, false);
}
void Preferences::setLaunchAtLogin(bool on) {
    write(launchAtLoginKey, LaunchAtLogin::set(on));
}
void Preferences::refreshLaunchAtLogin() {
    write(launchAtLoginKey, LaunchAtLogin::isEnabled());
}

bool Preferences::notifyOutdatedApps() const {
    return flag(notifyOutdatedAppsKey, false);
}
void Preferences::setNotifyOutdatedApps(bool on) {
    write(notifyOutdatedAppsKey, on);
}

QString Preferences::cleanDestination() const {
    return CleanDestinations::rawValue(CleanDestinations::stored());
}
void Preferences::setCleanDestination(const QString& raw) {
    if (CleanDestinations::fromRaw(raw))
        write(cleanDestinationKey, raw);
}

QString Preferences::accent() const {
    const QString raw = QSettings().value(QLatin1String(accentKey)).toString();
    return PainelAccents::rawValue(PainelAccents::fromRaw(raw).value_or(PainelAccents::standard));
}
void Preferences::setAccent(const QString& raw) {
    if (PainelAccents::fromRaw(raw))
        write(accentKey, raw);
}

bool Preferences::onboardingDone() const {
    return flag(onboardingDoneKey, false);
}
void Preferences::setOnboardingDone(bool done) {
    write(onboardingDoneKey, done);
}
