#include "App/LanguageChoice.hpp"

#include "App/Announcer.hpp"

#include <QVariantMap>

LanguageChoice::LanguageChoice(QObject* parent)
    : LanguageChoice(AppLanguages::atLaunch(), AppLanguages::systemLanguages(), parent) {}

LanguageChoice::LanguageChoice(AppLanguage launchedIn, QStringList systemPreferences, QObject* parent)
    : QObject(parent), launch(launchedIn), system(std::move(systemPreferences)),
      current(AppLanguages::stored()) {
    relaunchNeeded = AppLanguages::resolvedLocalization(current, system) !=
                     AppLanguages::resolvedLocalization(launch, system);
}

QVariantList LanguageChoice::options() const {
    QVariantList list;
    for (AppLanguage language : AppLanguages::allCases)
        list.append(QVariantMap{{"raw", AppLanguages::rawValue(language)},
                                {"title", qtTrId(AppLanguages::titleKey(language))}});
    return list;
}

void LanguageChoice::choose(AppLanguage language) {
    AppLanguages::apply(language);
    current = AppLanguages::stored();
    const bool differs = AppLanguages::resolvedLocalization(current, system) !=
                         AppLanguages::resolvedLocalization(launch, system);
    const bool announce = differs && !relaunchNeeded;
    relaunchNeeded = differs;
    emit choiceChanged();
    if (announce)
        Announcer::announce(qtTrId("settings.language.relaunchNotice"));
}

void LanguageChoice::chooseRaw(const QString& raw) {
    if (auto language = AppLanguages::fromRaw(raw))
        choose(*language);
}

void LanguageChoice::relaunch() {
    (void)AppLanguages::relaunch();
}
