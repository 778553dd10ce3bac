#pragma once

#include "App/AppModel.hpp"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

// The "Go" menu: one checkable item per channel, each with the shortcut Ctrl+<raw value>. Choosing
// an item, checked or not, opens its channel, so the channel on show stays selected.
class GoCommands : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(AppModel* model READ model WRITE setModel NOTIFY modelChanged)
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(int count READ count CONSTANT)

public:
    explicit GoCommands(QObject* parent = nullptr);

    AppModel* model() const { return appModel; }
    void setModel(AppModel* model);
    QString title() const;
    int count() const;

    Q_INVOKABLE QString itemTitle(int raw) const;
    Q_INVOKABLE QString shortcut(int raw) const; // "Ctrl+3"; Qt shows Command on macOS
    Q_INVOKABLE bool isChecked(int raw) const;
    Q_INVOKABLE void choose(int raw);

signals:
    void modelChanged();
    void checkedChanged();

private:
    QPointer<AppModel> appModel;
};
