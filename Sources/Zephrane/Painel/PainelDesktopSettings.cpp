#include "Painel/PainelDesktopSettings.hpp"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

namespace {

const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settingsInterface = QStringLiteral("org.freedesktop.portal.Settings");

const QString gnomeInterface = QStringLiteral("org.gnome.desktop.interface");
const QString gnomeA11y = QStringLiteral("org.gnome.desktop.a11y.interface");
const QString appearance = QStringLiteral("org.freedesktop.appearance");

// Older portals wrap the value of Read() in a second variant.
QVariant unwrap(QVariant value) {
    while (value.canConvert<QDBusVariant>() && value.userType() == qMetaTypeId<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

PainelDesktopSettings& PainelDesktopSettings::shared() {
    static PainelDesktopSettings* settings = new PainelDesktopSettings;
    return *settings;
}

PainelDesktopSettings::PainelDesktopSettings() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(portalService, portalPath, settingsInterface, QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    read(gnomeInterface, QStringLiteral("enable-animations"));
    read(gnomeA11y, QStringLiteral("high-contrast"));
    read(appearance, QStringLiteral("contrast"));
}

void PainelDesktopSettings::read(const QString& group, const QString& key) {
    // Asynchronous, so a slow or absent portal never holds up the first window.
    QDBusMessage message =
        QDBusMessage::createMethodCall(portalService, portalPath, settingsInterface, QStringLiteral("Read"));
    message << group << key;
    auto* watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, group, key] {
        watcher->deleteLater();
        const QDBusPendingReply<QVariant> reply = *watcher;
        if (!reply.isError())
            apply(group, key, reply.value());
    });
}

void PainelDesktopSettings::settingChanged(const QString& group, const QString& key,
                                           const QDBusVariant& value) {
    apply(group, key, value.variant());
}

void PainelDesktopSettings::apply(const QString& group, const QString& key, const QVariant& value) {
    if (overridden)
        return;
    const PainelDesktopPreferences next = interpret(group, key, value, current);
    if (next == current)
        return;
    current = next;
    emit changed();
}

void PainelDesktopSettings::overrideWith(PainelDesktopPreferences fixed) {
    overridden = true;
    if (fixed == current)
        return;
    current = fixed;
    emit changed();
}

PainelDesktopPreferences PainelDesktopSettings::interpret(const QString& group, const QString& key,
                                                          const QVariant& raw,
                                                          PainelDesktopPreferences into) {
    const QVariant value = unwrap(raw);
    if (!value.isValid())
        return into;
    if (group == gnomeInterface && key == QLatin1String("enable-animations"))
        into.reducedMotion = !value.toBool();
    else if (group == gnomeA11y && key == QLatin1String("high-contrast"))
        into.increasedContrast = value.toBool();
    // 0 is "no preference", 1 "more contrast"; GNOME derives it from the key above, so both agree.
    else if (group == appearance && key == QLatin1String("contrast"))
        into.increasedContrast = value.toUInt() == 1;
    return into;
}
