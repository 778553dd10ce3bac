#include "Modules/Shared/ScanStep.hpp"

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
