#include "Painel/PainelTheme.hpp"

#include <QDirIterator>
#include <QFontDatabase>
#include <QSettings>

PainelTheme::PainelTheme(QObject* parent) : QObject(parent) {
    chosenAccent =
        PainelAccents::fromRaw(QSettings().value(QStringLiteral("accent")).toString()).value_or(PainelAccents::standard);
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

void PainelTheme::setAccentName(const QString& name) {
    if (const auto accent = PainelAccents::fromRaw(name))
        setAccentChoice(*accent);
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

void PainelTheme::rebuild() {
    colors = PainelPalette::make(chosenAccent, contrast);
    emit paletteChanged();
}
