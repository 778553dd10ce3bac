#include "App/Preferences.hpp"
#include "Painel/PainelDesktopSettings.hpp"
#include "Painel/PainelPalette.hpp"
#include "Painel/PainelTheme.hpp"

#include <QDBusVariant>
#include <QSettings>
#include <QSignalSpy>

#include <gtest/gtest.h>

// The colours themselves are the palette's to choose; what contrast does to them is the rule.
TEST(PainelPalette, IncreasedContrastDarkensUnlitCellsAndLightensOutlinesAndSecondaryText) {
    const PainelPalette standard = PainelPalette::make(PainelAccent::orange, false);
    const PainelPalette contrast = PainelPalette::make(PainelAccent::orange, true);
    EXPECT_LT(contrast.ledOff.lightness(), standard.ledOff.lightness());
    for (auto field :
         {&PainelPalette::border, &PainelPalette::divider, &PainelPalette::muted, &PainelPalette::faint})
        EXPECT_GT((contrast.*field).lightness(), (standard.*field).lightness());
    // What contrast leaves alone stays as it is.
    for (auto field : {&PainelPalette::bg, &PainelPalette::deep, &PainelPalette::panel,
                       &PainelPalette::raised, &PainelPalette::text, &PainelPalette::ok, &PainelPalette::warn,
                       &PainelPalette::accent, &PainelPalette::onAccent})
        EXPECT_EQ(standard.*field, contrast.*field);
}

TEST(PainelTheme, EveryThemeFollowsTheAccentOfThePreferences) {
    Preferences preferences;
    preferences.setAccent(PainelAccent::lime);
    PainelTheme main;
    PainelTheme settings;
    main.follow(&preferences);
    settings.follow(&preferences);
    EXPECT_EQ(main.accentName(), "lime") << "a theme takes the stored choice when it starts to follow";
    QSignalSpy recoloured(&settings, &PainelTheme::paletteChanged);

    preferences.setAccentRaw("blue");
    EXPECT_EQ(main.accent(), QColor(0x3A, 0xA0, 0xFF));
    EXPECT_EQ(settings.accent(), main.accent());
    EXPECT_EQ(recoloured.count(), 1);
    preferences.setAccentRaw("no such colour");
    EXPECT_EQ(recoloured.count(), 1);
    preferences.setAccent(PainelAccent::orange);
}

TEST(PainelDesktopSettings, ReadsTheDesktopsMotionAndContrastKeys) {
    const QString gnome = "org.gnome.desktop.interface";
    const QString a11y = "org.gnome.desktop.a11y.interface";
    const QString appearance = "org.freedesktop.appearance";
    PainelDesktopPreferences seen;
    seen = PainelDesktopSettings::interpret(gnome, "enable-animations", false, seen);
    EXPECT_EQ(seen.reducedMotion, true);
    EXPECT_EQ(seen.increasedContrast, std::nullopt);
    // Older portals wrap the value in a second variant.
    const QVariant wrapped = QVariant::fromValue(QDBusVariant(QVariant(true)));
    seen = PainelDesktopSettings::interpret(gnome, "enable-animations", wrapped, seen);
    EXPECT_EQ(seen.reducedMotion, false);
    seen = PainelDesktopSettings::interpret(a11y, "high-contrast", true, seen);
    EXPECT_EQ(seen.increasedContrast, true);
    seen = PainelDesktopSettings::interpret(appearance, "contrast", 0u, seen);
    EXPECT_EQ(seen.increasedContrast, false);
    seen = PainelDesktopSettings::interpret(appearance, "contrast", 1u, seen);
    EXPECT_EQ(seen.increasedContrast, true);
    const PainelDesktopPreferences before = seen;
    seen = PainelDesktopSettings::interpret(gnome, "gtk-theme", "Adwaita", seen);
    seen = PainelDesktopSettings::interpret(a11y, "high-contrast", QVariant(), seen);
    EXPECT_EQ(seen, before) << "keys we don't follow and empty answers change nothing";
}

TEST(PainelDesktopSettings, ThemesFollowTheDesktopWhenItChanges) {
    PainelDesktopSettings& desktop = PainelDesktopSettings::shared();
    const PainelDesktopPreferences before = desktop.preferences();
    PainelTheme theme;
    desktop.overrideWith({.reducedMotion = true, .increasedContrast = true});
    EXPECT_TRUE(theme.reducedMotion());
    EXPECT_TRUE(theme.increasedContrast());
    EXPECT_EQ(theme.ledOff(), PainelPalette::make(PainelAccent::orange, true).ledOff);
    EXPECT_TRUE(PainelTheme().increasedContrast()) << "a theme made later starts from the desktop";
    desktop.overrideWith(before);
    EXPECT_FALSE(theme.increasedContrast());
}
