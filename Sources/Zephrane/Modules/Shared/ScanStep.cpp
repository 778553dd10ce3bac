#include "Modules/Shared/ScanStep.hpp"

#include "Painel/ByteFormat.hpp"

QString ScanStep::State::rawValue() const {
    switch (kind) {
    case Kind::waiting:
        return QStringLiteral("waiting");
    case Kind::scanning:
        return QStringLiteral("scanning");
    case Kind::done:
        return QStringLiteral("done");
    }
    return {};
}

QString ScanStep::valueText() const {
    switch (state.kind) {
    case State::Kind::waiting:
        return qtTrId("phase.step.waiting");
    case State::Kind::scanning:
        return qtTrId("phase.step.scanning");
    case State::Kind::done:
        break;
    }
    return doneText.value_or(ByteFormat::text(static_cast<double>(state.bytes)));
}
