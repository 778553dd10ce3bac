#include "Modules/Shared/PhaseAnnouncements.hpp"

#include "App/Announcer.hpp"
#include "Modules/Shared/ModulePhaseModel.hpp"
#include "Painel/ByteFormat.hpp"

void PhaseAnnouncements::setModel(ModulePhaseModel* model) {
    if (model == watched)
        return;
    if (watched)
        disconnect(watched, nullptr, this, nullptr);
    watched = model;
    // The screen that is there when the view appears is not news.
    last = model ? std::optional(model->painelPhase()) : std::nullopt;
    if (model) {
        connect(model, &ModulePhaseModel::painelPhaseChanged, this, &PhaseAnnouncements::phaseChanged);
        connect(model, &ModulePhaseModel::stepFinished, this, &PhaseAnnouncements::stepFinished);
    }
    emit modelChanged();
}

std::optional<QString> PhaseAnnouncements::announcement(std::optional<PainelPhase> from, PainelPhase to,
                                                        const QString& foundSpoken,
                                                        const QString& freedSpoken) {
    if (from == to)
        return std::nullopt;
    switch (to) {
    case PainelPhase::idle:
    case PainelPhase::confirm:
        return std::nullopt;
    case PainelPhase::scanning:
        return qtTrId("phase.announce.scanning");
    case PainelPhase::results:
        if (from == PainelPhase::confirm)
            return std::nullopt;
        return qtTrId("phase.announce.results").arg(foundSpoken);
    case PainelPhase::cleaning:
        return qtTrId("phase.announce.cleaning");
    case PainelPhase::success:
        return qtTrId("phase.announce.success").arg(freedSpoken);
    case PainelPhase::empty:
        return qtTrId("phase.announce.empty");
    }
    return std::nullopt;
}

void PhaseAnnouncements::phaseChanged() {
    if (!watched)
        return;
    const PainelPhase now = watched->painelPhase();
    const QString found = watched->foundSpoken();
    const QString freed =
        ByteFormat::spoken(watched->outcome() ? static_cast<double>(watched->outcome()->bytes) : 0.0);
    if (auto text = announcement(last, now, found, freed))
        Announcer::announce(*text);
    last = now;
}

void PhaseAnnouncements::stepFinished(const QString& title) {
    Announcer::announce(qtTrId("phase.announce.step").arg(title));
}
