#pragma once

#include "Modules/Shared/PainelPhase.hpp"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

class ModulePhaseModel;

// Speaks the changes of a channel's screen while the screen is shown: one announcement per new
// phase, and one per finished scan step. Idle and the confirmation sheet are silent, and so is
// closing the sheet back to the results.
class PhaseAnnouncements : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(ModulePhaseModel* model READ model WRITE setModel NOTIFY modelChanged)

public:
    explicit PhaseAnnouncements(QObject* parent = nullptr) : QObject(parent) {}

    ModulePhaseModel* model() const { return watched; }
    void setModel(ModulePhaseModel* model);

    // The words for a move between screens; nothing when the move is silent.
    // `foundSpoken` and `freedSpoken` are the spoken sizes the results and success screens name.
    static std::optional<QString> announcement(std::optional<PainelPhase> from, PainelPhase to,
                                               const QString& foundSpoken, const QString& freedSpoken);

signals:
    void modelChanged();

private:
    void phaseChanged();
    void stepFinished(const QString& title);

    QPointer<ModulePhaseModel> watched;
    std::optional<PainelPhase> last;
};
