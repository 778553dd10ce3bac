#include "Modules/Shared/CleanupLine.hpp"

#include "Modules/Shared/PhaseFormat.hpp"
#include "Painel/ByteFormat.hpp"

QString CleanupLine::countText() const {
    return PhaseFormat::count(count);
}

QString CleanupLine::sizeText() const {
    return ByteFormat::text(static_cast<double>(bytes));
}
