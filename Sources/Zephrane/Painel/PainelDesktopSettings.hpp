#pragma once

#include <QObject>
#include <QVariant>

#include <optional>

class QDBusPendingCallWatcher;
class QDBusVariant;

// What the desktop says about motion and contrast; absent where it says nothing.
struct PainelDesktopPreferences {
    std::optional<bool> reducedMotion;
    std::optional<bool> increasedContrast;

    bool operator==(const PainelDesktopPreferences&) const = default;
};

// Follows the desktop's own accessibility settings through the XDG desktop portal (GNOME and KDE
// answer there): animations off means reduced motion, high contrast means increased contrast.
// With no session bus or no portal it stays silent and the look keeps its defaults.
class PainelDesktopSettings : public QObject {
    Q_OBJECT

public:
    // One reader per process: every theme of every engine follows the same desktop.
    static PainelDesktopSettings& shared();

    PainelDesktopPreferences preferences() const { return current; }

    // Fixed preferences that the desktop can no longer change; tests use it to be deterministic.
    void overrideWith(PainelDesktopPreferences fixed);

    // One setting as the portal reports it, folded into `into`; settings we don't follow change
    // nothing.
    static PainelDesktopPreferences interpret(const QString& group, const QString& key, const QVariant& value,
                                              PainelDesktopPreferences into);

signals:
    void changed();

private slots:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    PainelDesktopSettings();
    void read(const QString& group, const QString& key);
    void apply(const QString& group, const QString& key, const QVariant& value);

    PainelDesktopPreferences current;
    bool overridden = false;
};
