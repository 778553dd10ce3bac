#include "Modules/Shared/CleanupSummary.hpp"

#include "Modules/Shared/PhaseFormat.hpp"
#include "Painel/ByteFormat.hpp"

int CleanupSummary::count() const {
    int total = 0;
    for (const CleanupLine& line : lines)
        total += line.count;
    return total;
}

std::int64_t CleanupSummary::bytes() const {
    std::int64_t total = 0;
    for (const CleanupLine& line : lines)
        total += line.bytes;
    return total;
}

QVariantList CleanupSummary::lineValues() const {
    return cleanupLineValues(lines);
}

QString CleanupSummary::countText() const {
    return PhaseFormat::count(count());
}

QString CleanupSummary::sizeText() const {
    return ByteFormat::text(bytesValue());
}

QVariantList cleanupLineValues(const std::vector<CleanupLine>& lines) {
    QVariantList values;
    for (const CleanupLine& line : lines)
        values.append(QVariant::fromValue(line));
    return values;
}
