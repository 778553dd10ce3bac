#include "Modules/Shared/ModulePhaseActions.hpp"

void ModulePhaseActions::setEmptyTrash(Action action) {
    emptyTrashAction = std::move(action);
    emit changed();
}

void ModulePhaseActions::setIdleSecondary(const QString& title, Action action) {
    secondaryTitle = title;
    idleSecondaryAction = std::move(action);
    emit changed();
}

void ModulePhaseActions::setStop(Action action) {
    stopAction = std::move(action);
    emit changed();
}
