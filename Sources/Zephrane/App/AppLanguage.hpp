#pragma once

#include <QString>
#include <QStringList>

class QCoreApplication;

// The language of the interface and of the engine's texts: English or Brazilian Portuguese, with
// Portuguese as the fallback for every other language.
namespace AppLanguage {

inline const QString english = QStringLiteral("en");
inline const QString portuguese = QStringLiteral("pt-BR");

// The languages the desktop prefers, most preferred first (BCP 47).
QStringList systemLanguages();
// The first preference that one of ours serves, by identifier then by language; else Portuguese.
QString resolvedLocalization(const QStringList& preferences);
// Fixed at first use for the life of the process.
QString atLaunch();
// Loads the interface's translation and points the engine at the same language.
void install(QCoreApplication& app, const QString& localization);

} // namespace AppLanguage
