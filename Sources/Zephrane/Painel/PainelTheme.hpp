#pragma once

#include "Painel/PainelPalette.hpp"

#include <QPointer>

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

// The palette, fonts and motion setting in force, for every view. The one stateful singleton the
// views may read: it follows the accent of the preferences it is given and the desktop's contrast and
// motion settings, and
// holds the metrics of the keys so that every key of every screen has the same shape.
class Preferences;

class PainelTheme : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QColor bg READ bg NOTIFY paletteChanged)
    Q_PROPERTY(QColor deep READ deep NOTIFY paletteChanged)
    Q_PROPERTY(QColor panel READ panel NOTIFY paletteChanged)
    Q_PROPERTY(QColor raised READ raised NOTIFY paletteChanged)
    Q_PROPERTY(QColor border READ border NOTIFY paletteChanged)
    Q_PROPERTY(QColor divider READ divider NOTIFY paletteChanged)
    Q_PROPERTY(QColor text READ text NOTIFY paletteChanged)
    Q_PROPERTY(QColor muted READ muted NOTIFY paletteChanged)
    Q_PROPERTY(QColor faint READ faint NOTIFY paletteChanged)
    Q_PROPERTY(QColor ledOff READ ledOff NOTIFY paletteChanged)
    Q_PROPERTY(QColor ok READ ok NOTIFY paletteChanged)
    Q_PROPERTY(QColor warn READ warn NOTIFY paletteChanged)
    Q_PROPERTY(QColor accent READ accent NOTIFY paletteChanged)
    Q_PROPERTY(QColor onAccent READ onAccent NOTIFY paletteChanged)
    Q_PROPERTY(QString accentName READ accentName NOTIFY paletteChanged)
    Q_PROPERTY(QStringList accentNames READ accentNames CONSTANT)
    Q_PROPERTY(bool increasedContrast READ increasedContrast WRITE setIncreasedContrast NOTIFY paletteChanged)
    Q_PROPERTY(bool reducedMotion READ reducedMotion WRITE setReducedMotion NOTIFY reducedMotionChanged)
    Q_PROPERTY(QString monoFamily READ monoFamily CONSTANT)
    Q_PROPERTY(QString sansFamily READ sansFamily CONSTANT)
    Q_PROPERTY(QString dotFamily READ dotFamily CONSTANT)

public:
    explicit PainelTheme(QObject* parent = nullptr);

    // Registers the bundled fonts once per process; call before the first window loads.
    static void installFonts();

    const PainelPalette& palette() const { return colors; }
    QColor bg() const { return colors.bg; }
    QColor deep() const { return colors.deep; }
    QColor panel() const { return colors.panel; }
    QColor raised() const { return colors.raised; }
    QColor border() const { return colors.border; }
    QColor divider() const { return colors.divider; }
    QColor text() const { return colors.text; }
    QColor muted() const { return colors.muted; }
    QColor faint() const { return colors.faint; }
    QColor ledOff() const { return colors.ledOff; }
    QColor ok() const { return colors.ok; }
    QColor warn() const { return colors.warn; }
    QColor accent() const { return colors.accent; }
    QColor onAccent() const { return colors.onAccent; }

    PainelAccent accentChoice() const { return chosenAccent; }
    // Colours this theme with `accent` until the followed preferences say otherwise.
    void setAccentChoice(PainelAccent accent);
    QString accentName() const { return PainelAccents::rawValue(chosenAccent); }
    // Takes the accent from `preferences` from now on (each window's engine has its own theme;
    // all follow the one set of preferences).
    Q_INVOKABLE void follow(Preferences* preferences);
    QStringList accentNames() const;
    // The colour of an accent by name, for swatches of the picker.
    Q_INVOKABLE QColor accentColor(const QString& name) const;
    bool increasedContrast() const { return contrast; }
    void setIncreasedContrast(bool on);
    bool reducedMotion() const { return lessMotion; }
    void setReducedMotion(bool on);

    // How long an effect of `milliseconds` runs: 0 under reduced motion.
    Q_INVOKABLE int duration(int milliseconds) const;

    // Metrics of a key for a PainelButtonSize value.
    Q_INVOKABLE int keyHeight(int size) const;
    Q_INVOKABLE int keyFontSize(int size) const;
    Q_INVOKABLE int keyPadding(int size) const;

    QString monoFamily() const { return QStringLiteral("IBM Plex Mono"); }
    QString sansFamily() const { return QStringLiteral("Inter"); }
    QString dotFamily() const { return QStringLiteral("Doto"); }

signals:
    void paletteChanged();
    void reducedMotionChanged();

private:
    void rebuild();
    void followDesktop();

    PainelAccent chosenAccent = PainelAccents::standard;
    bool contrast = false;
    bool lessMotion = false;
    PainelPalette colors;
    QPointer<Preferences> followed;
};
