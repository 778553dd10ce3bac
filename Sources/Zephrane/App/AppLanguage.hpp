#pragma once

#include <QString>
#include <QStringList>

#include <array>
#include <functional>
#include <optional>

class QCoreApplication;

// The interface language the user picked: the desktop's, or one of the two we carry.
enum class AppLanguage { system, portuguese, english };

// Choosing, storing and resolving the interface language. Portuguese is the fallback for every
// language we do not carry, on purpose.
namespace AppLanguages {

inline constexpr std::array<AppLanguage, 3> allCases{AppLanguage::system, AppLanguage::portuguese,
                                                     AppLanguage::english};
// The one setting that overrides the desktop's language, in the application's own settings.
inline constexpr const char* overrideKey = "AppleLanguages";

QString rawValue(AppLanguage language); // "system", "pt-BR", "en"
std::optional<AppLanguage> fromRaw(const QString& raw);
const char* titleKey(AppLanguage language); // "settings.language.system", ...

// Writes the override (a one-element list) or clears it for `system`. Fixes atLaunch() first, so the
// language the process runs in stays known after the change.
void apply(AppLanguage language);
// The override read from the application's own settings file only, never from the organisation's
// or the system's fallbacks; anything but "pt-BR" or "en" first in a list reads as `system`.
AppLanguage stored();
// The languages the desktop prefers, most preferred first (BCP 47).
QStringList systemLanguages();
// The localization we show for a preference list: the first preference that one of ours serves,
// else Portuguese.
QString bestLocalization(const QStringList& preferences);
// The localization a choice leads to; `system` follows the desktop's preferences.
QString resolvedLocalization(AppLanguage language, const QStringList& system = systemLanguages());
// stored() as it was when the process first asked; never changes after that.
AppLanguage atLaunch();

// Loads the interface's translation and points the engine at the same language.
void install(QCoreApplication& app, const QString& localization);

// Starts a new copy of this program with the same arguments and, only once it is under way, quits
// this one. When the new process can't be started the running one stays. Tests replace both steps.
using ProcessStarter = std::function<bool(const QString& program, const QStringList& arguments)>;
bool relaunch(const ProcessStarter& start = {}, const std::function<void()>& quit = {});

} // namespace AppLanguages
