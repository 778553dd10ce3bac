#pragma once

#include "App/AppLanguage.hpp"

#include <QObject>
#include <QStringList>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

// The language row's state: the stored choice, and whether it differs from the language the
// process runs in, which only a restart can change.
class LanguageChoice : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString choice READ choiceRaw NOTIFY choiceChanged)
    Q_PROPERTY(bool needsRelaunch READ needsRelaunch NOTIFY choiceChanged)
    Q_PROPERTY(QVariantList options READ options CONSTANT)

public:
    explicit LanguageChoice(QObject* parent = nullptr);
    // Tests fix the language of the launch and the desktop's preferences.
    LanguageChoice(AppLanguage launchedIn, QStringList systemPreferences, QObject* parent = nullptr);

    AppLanguage choice() const { return current; }
    QString choiceRaw() const { return AppLanguages::rawValue(current); }
    bool needsRelaunch() const { return relaunchNeeded; }
    // One entry per language in order: raw and title.
    QVariantList options() const;

    void choose(AppLanguage language);
    Q_INVOKABLE void chooseRaw(const QString& raw);
    Q_INVOKABLE void relaunch();

signals:
    void choiceChanged();

private:
    AppLanguage launch;
    QStringList system;
    AppLanguage current;
    bool relaunchNeeded = false;
};
