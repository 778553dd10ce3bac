#include "App/LaunchAtLogin.hpp"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSettings>

namespace LaunchAtLogin {
namespace {

QString configHome() {
    const QString xdg = qEnvironmentVariable("XDG_CONFIG_HOME");
    // XDG base directories must be absolute; a relative value is ignored.
    return !xdg.isEmpty() && QDir::isAbsolutePath(xdg) ? xdg : QDir::homePath() + QStringLiteral("/.config");
}

// Exec values quote arguments that hold anything beyond plain characters.
QString execQuoted(const QString& program) {
    static const QString plain =
        QStringLiteral("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789/._-+");
    for (QChar c : program)
        if (!plain.contains(c)) {
            QString escaped = program;
            escaped.replace('\\', QLatin1String("\\\\"))
                .replace('"', QLatin1String("\\\""))
                .replace('`', QLatin1String("\\`"))
                .replace('$', QLatin1String("\\$"));
            return '"' + escaped + '"';
        }
    return program;
}

bool writeEntry(const QString& path) {
    if (!QDir().mkpath(QFileInfo(path).absolutePath()))
        return false;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text))
        return false;
    const QString program = QCoreApplication::applicationFilePath();
    const QString entry = QStringLiteral("[Desktop Entry]\n"
                                         "Type=Application\n"
                                         "Name=Zephrane\n"
                                         "Exec=%1\n"
                                         "Terminal=false\n"
                                         "X-GNOME-Autostart-enabled=true\n")
                              .arg(execQuoted(program));
    file.write(entry.toUtf8());
    return file.commit();
}

} // namespace

QString entryPath() {
    return configHome() + QStringLiteral("/autostart/zephrane.desktop");
}

bool isEnabled() {
    const QString path = entryPath();
    if (!QFileInfo(path).isFile())
        return false;
    QSettings entry(path, QSettings::IniFormat);
    entry.beginGroup(QStringLiteral("Desktop Entry"));
    const bool hidden = entry.value(QStringLiteral("Hidden"), false).toBool();
    const bool switchedOn = entry.value(QStringLiteral("X-GNOME-Autostart-enabled"), true).toBool();
    return entry.status() == QSettings::NoError && !hidden && switchedOn;
}

bool set(bool on) {
    const QString path = entryPath();
    if (on)
        (void)writeEntry(path);
    else
        (void)QFile::remove(path);
    return isEnabled();
}

} // namespace LaunchAtLogin
