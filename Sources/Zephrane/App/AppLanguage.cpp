#include "App/AppLanguage.hpp"

#include "CleanerCore/Display/CoreL10n.hpp"

#include <QCoreApplication>
#include <QLocale>
#include <QProcess>
#include <QSettings>
#include <QTranslator>

namespace AppLanguages {

QString rawValue(AppLanguage language) {
    switch (language) {
    case AppLanguage::system:
        return QStringLiteral("system");
    case AppLanguage::portuguese:
        return QStringLiteral("pt-BR");
    case AppLanguage::english:
        return QStringLiteral("en");
    }
    return QStringLiteral("system");
}

std::optional<AppLanguage> fromRaw(const QString& raw) {
    for (AppLanguage language : allCases)
        if (rawValue(language) == raw)
            return language;
    return std::nullopt;
}

const char* titleKey(AppLanguage language) {
    switch (language) {
    case AppLanguage::system:
        return QT_TRID_NOOP("settings.language.system");
    case AppLanguage::portuguese:
        return QT_TRID_NOOP("settings.language.portuguese");
    case AppLanguage::english:
        return QT_TRID_NOOP("settings.language.english");
    }
    return "settings.language.system";
}

void apply(AppLanguage language) {
    (void)atLaunch();
    QSettings settings;
    if (language == AppLanguage::system)
        settings.remove(QLatin1String(overrideKey));
    else
        settings.setValue(QLatin1String(overrideKey), QStringList{rawValue(language)});
}

AppLanguage stored() {
    QSettings settings;
    settings.setFallbacksEnabled(false);
    const QVariant value = settings.value(QLatin1String(overrideKey));
    // A one-element list comes back from the settings file as plain text; both forms are ours.
    QString first;
    if (value.typeId() == QMetaType::QStringList) {
        const QStringList list = value.toStringList();
        first = list.isEmpty() ? QString() : list.first();
    } else if (value.typeId() == QMetaType::QString) {
        first = value.toString();
    }
    return fromRaw(first).value_or(AppLanguage::system);
}

QStringList systemLanguages() {
    return QLocale::system().uiLanguages();
}

QString bestLocalization(const QStringList& preferences) {
    for (QString preference : preferences) {
        preference = preference.replace('_', '-').toLower();
        const QString language = preference.section('-', 0, 0);
        if (language == QLatin1String("pt"))
            return rawValue(AppLanguage::portuguese);
        if (language == QLatin1String("en"))
            return rawValue(AppLanguage::english);
    }
    return rawValue(AppLanguage::portuguese);
}

QString resolvedLocalization(AppLanguage language, const QStringList& system) {
    return bestLocalization(language == AppLanguage::system ? system : QStringList{rawValue(language)});
}

AppLanguage atLaunch() {
    static const AppLanguage first = stored();
    return first;
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

bool relaunch(const ProcessStarter& start, const std::function<void()>& quit) {
    const QString program = QCoreApplication::applicationFilePath();
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    const bool started = start ? start(program, arguments) : QProcess::startDetached(program, arguments);
    if (!started)
        return false;
    if (quit)
        quit();
    else
        QCoreApplication::quit();
    return true;
}

} // namespace AppLanguages
