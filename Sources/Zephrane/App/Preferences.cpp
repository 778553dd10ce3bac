#include "App/Preferences.hpp"

#include "App/LaunchAtLogin.hpp"

#include <QSettings>

namespace {

QVariant stored(const char* key) {
    return QSettings().value(QLatin1String(key));
}

bool flag(const char* key, bool fallback) {
    const QVariant value = stored(key);
    return value.isValid() ? value.toBool() : fallback;
}

} // namespace

Preferences::Preferences(QObject* parent) : QObject(parent) {}

void Preferences::write(const char* key, const QVariant& value, void (Preferences::*changed)()) {
    QSettings settings;
    if (settings.contains(QLatin1String(key)) && settings.value(QLatin1String(key)) == value)
        return;
    settings.setValue(QLatin1String(key), value);
    emit(this->*changed)();
}

bool Preferences::showMenuBarAgent() const {
    return flag(showMenuBarAgentKey, true);
}
void Preferences::setShowMenuBarAgent(bool on) {
    write(showMenuBarAgentKey, on, &Preferences::showMenuBarAgentChanged);
}

bool Preferences::launchAtLogin() const {
    return flag(launchAtLoginKey, false);
}
void Preferences::setLaunchAtLogin(bool on) {
    write(launchAtLoginKey, LaunchAtLogin::set(on), &Preferences::launchAtLoginChanged);
}
void Preferences::refreshLaunchAtLogin() {
    write(launchAtLoginKey, LaunchAtLogin::isEnabled(), &Preferences::launchAtLoginChanged);
}

bool Preferences::notifyOutdatedApps() const {
    return flag(notifyOutdatedAppsKey, false);
}
void Preferences::setNotifyOutdatedApps(bool on) {
    write(notifyOutdatedAppsKey, on, &Preferences::notifyOutdatedAppsChanged);
}

CleanDestination Preferences::cleanDestination() const {
    return CleanDestinations::fromRaw(stored(cleanDestinationKey).toString())
        .value_or(CleanDestination::trash);
}
void Preferences::setCleanDestination(CleanDestination destination) {
    write(cleanDestinationKey, CleanDestinations::rawValue(destination),
          &Preferences::cleanDestinationChanged);
}
void Preferences::setCleanDestinationRaw(const QString& raw) {
    if (auto destination = CleanDestinations::fromRaw(raw))
        setCleanDestination(*destination);
}

PainelAccent Preferences::accent() const {
    return PainelAccents::fromRaw(stored(accentKey).toString()).value_or(PainelAccents::standard);
}
void Preferences::setAccent(PainelAccent accent) {
    write(accentKey, PainelAccents::rawValue(accent), &Preferences::accentChanged);
}
void Preferences::setAccentRaw(const QString& raw) {
    if (auto accent = PainelAccents::fromRaw(raw))
        setAccent(*accent);
}

bool Preferences::onboardingDone() const {
    return flag(onboardingDoneKey, false);
}
void Preferences::setOnboardingDone(bool done) {
    write(onboardingDoneKey, done, &Preferences::onboardingDoneChanged);
}

std::map<std::string, std::string> Preferences::ignoredUpdateVersions() const {
    std::map<std::string, std::string> versions;
    const QVariantMap stored = QSettings().value(QLatin1String(ignoredUpdateVersionsKey)).toMap();
    for (auto it = stored.begin(); it != stored.end(); ++it)
        versions[it.key().toStdString()] = it.value().toString().toStdString();
    return versions;
}
void Preferences::setIgnoredUpdateVersions(const std::map<std::string, std::string>& versions) {
    QVariantMap map;
    for (const auto& [key, version] : versions)
        map.insert(QString::fromStdString(key), QString::fromStdString(version));
    QSettings().setValue(QLatin1String(ignoredUpdateVersionsKey), map);
}

QDateTime Preferences::updatesLastChecked() const {
    return QSettings().value(QLatin1String(updatesLastCheckedKey)).toDateTime();
}
void Preferences::setUpdatesLastChecked(const QDateTime& when) {
    QSettings().setValue(QLatin1String(updatesLastCheckedKey), when);
}
