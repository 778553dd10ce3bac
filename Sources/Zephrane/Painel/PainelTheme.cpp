#include "Painel/PainelTheme.hpp"

#include "Painel/PainelAnimation.hpp"
#include "Painel/PainelButtonSize.hpp"
#include "Painel/PainelDesktopSettings.hpp"

#include "App/Preferences.hpp"

#include <QDirIterator>
#include <QFontDatabase>

PainelTheme::PainelTheme(QObject* parent) : QObject(parent) {
    connect(&PainelDesktopSettings::shared(), &PainelDesktopSettings::changed, this,
            &PainelTheme::followDesktop);
    const PainelDesktopPreferences desktop = PainelDesktopSettings::shared().preferences();
    contrast = desktop.increasedContrast.value_or(false);
    lessMotion = desktop.reducedMotion.value_or(false);
    rebuild();
}

void PainelTheme::installFonts() {
    static const bool installed = [] {
        QDirIterator fonts(QStringLiteral(":/fonts"), {QStringLiteral("*.woff")});
        while (fonts.hasNext())
            QFontDatabase::addApplicationFont(fonts.next());
        return true;
    }();
    (void)installed;
}

void PainelTheme::setAccentChoice(PainelAccent accent) {
    if (accent == chosenAccent)
        return;
    chosenAccent = accent;
    rebuild();
}

void PainelTheme::follow(Preferences* preferences) {
    if (preferences == followed)
        return;
    if (followed)
        disconnect(followed, nullptr, this, nullptr);
    followed = preferences;
    if (!preferences)
        return;
    connect(preferences, &Preferences::accentChanged, this,
            [this] { setAccentChoice(followed->accent()); });
    setAccentChoice(preferences->accent());
}

QStringList PainelTheme::accentNames() const {
    QStringList names;
    for (PainelAccent accent : PainelAccents::allCases)
        names.append(PainelAccents::rawValue(accent));
    return names;
}

QColor PainelTheme::accentColor(const QString& name) const {
    return PainelAccents::color(PainelAccents::fromRaw(name).value_or(PainelAccents::standard));
}

void PainelTheme::setIncreasedContrast(bool on) {
    if (on == contrast)
        return;
    contrast = on;
    rebuild();
}

void PainelTheme::setReducedMotion(bool on) {
    if (on == lessMotion)
        return;
    lessMotion = on;
    emit reducedMotionChanged();
}

void PainelTheme::followDesktop() {
    const PainelDesktopPreferences desktop = PainelDesktopSettings::shared().preferences();
    setIncreasedContrast(desktop.increasedContrast.value_or(false));
    setReducedMotion(desktop.reducedMotion.value_or(false));
}

int PainelTheme::duration(int milliseconds) const {
    return PainelAnimation::duration(milliseconds, lessMotion);
}

namespace {

struct KeyMetrics {
    int height, fontSize, padding;
};

KeyMetrics keyMetrics(int size) {
    switch (PainelButtonSize::Value(size)) {
    case PainelButtonSize::Small: return {26, 10, 10};
    case PainelButtonSize::Large: return {44, 13, 22};
    case PainelButtonSize::Regular: break;
    }
    return {34, 11, 16};
}

} // namespace

int PainelTheme::keyHeight(int size) const { return keyMetrics(size).height; }
int PainelTheme::keyFontSize(int size) const { return keyMetrics(size).fontSize; }
int PainelTheme::keyPadding(int size) const { return keyMetrics(size).padding; }

void PainelTheme::rebuild() {
    colors = PainelPalette::make(chosenAccent, contrast);
    emit paletteChanged();
}
