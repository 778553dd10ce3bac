#include "App/AppLanguage.hpp"

#include "CleanerCore/Display/CoreL10n.hpp"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

namespace AppLanguage {

QStringList systemLanguages() { return QLocale::system().uiLanguages(); }

QString resolvedLocalization(const QStringList& preferences) {
    for (QString preference : preferences) {
        preference = preference.replace('_', '-').toLower();
        const QString language = preference.section('-', 0, 0);
        if (preference == QLatin1String("pt-br") || language == QLatin1String("pt"))
            return portuguese;
        if (language == QLatin1String("en"))
            return english;
    }
    return portuguese;
}

QString atLaunch() {
    static const QString chosen = resolvedLocalization(systemLanguages());
    return chosen;
}

void install(QCoreApplication& app, const QString& localization) {
    // One translator at a time: installing again (tests switch languages) replaces the last one.
    static QTranslator* installed = nullptr;
    if (installed) {
        QCoreApplication::removeTranslator(installed);
        delete installed;
        installed = nullptr;
    }
    auto* translator = new QTranslator(&app);
    const QString file = QStringLiteral(":/i18n/zephrane_%1.qm").arg(QString(localization).replace('-', '_'));
    if (translator->load(file) && QCoreApplication::installTranslator(translator))
        installed = translator;
    else
        delete translator;
    CleanerCore::CoreL10n::setCurrentLanguage(localization.toStdString());
}

} // namespace AppLanguage
