#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <functional>

// The keys of the shared phase screens. The model fills the required ones; the composition root
// adds what crosses channels (emptyTrash) and a channel may add a secondary key on its idle panel.
// Optional actions that are not set leave their key off the screen.
class ModulePhaseActions : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Actions belong to a channel model")
    Q_PROPERTY(bool hasStop READ hasStop NOTIFY changed)
    Q_PROPERTY(bool hasEmptyTrash READ hasEmptyTrash NOTIFY changed)
    Q_PROPERTY(QString idleSecondaryTitle READ idleSecondaryTitle NOTIFY changed)

public:
    using Action = std::function<void()>;
    explicit ModulePhaseActions(QObject* parent = nullptr) : QObject(parent) {}

    Action scanAction, stopAction, cancelConfirmAction, confirmAction, doneAction;
    void setEmptyTrash(Action action);
    void setIdleSecondary(const QString& title, Action action);
    void setStop(Action action);

    bool hasStop() const { return bool(stopAction); }
    bool hasEmptyTrash() const { return bool(emptyTrashAction); }
    QString idleSecondaryTitle() const { return idleSecondaryAction ? secondaryTitle : QString(); }

    Q_INVOKABLE void scan() { run(scanAction); }
    Q_INVOKABLE void stop() { run(stopAction); }
    Q_INVOKABLE void cancelConfirm() { run(cancelConfirmAction); }
    Q_INVOKABLE void confirm() { run(confirmAction); }
    Q_INVOKABLE void done() { run(doneAction); }
    Q_INVOKABLE void emptyTrash() { run(emptyTrashAction); }
    Q_INVOKABLE void idleSecondary() { run(idleSecondaryAction); }

signals:
    void changed();

private:
    static void run(const Action& action) {
        if (action)
            action();
    }
    Action emptyTrashAction, idleSecondaryAction;
    QString secondaryTitle;
};
