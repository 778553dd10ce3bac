#include "Modules/Trash/TrashRow.hpp"

#include "Modules/Trash/TrashText.hpp"
#include "Painel/ByteFormat.hpp"

TrashRow TrashRow::of(const CleanerCore::TrashEntry& entry, std::chrono::system_clock::time_point now) {
    TrashRow row;
    row.name = QString::fromStdString(entry.url.lastPathComponent());
    row.path = QString::fromStdString(entry.url.path());
    row.sizeText = ByteFormat::text(static_cast<double>(entry.size));
    if (entry.dateAdded)
        row.when = TrashText::when(*entry.dateAdded, now);
    return row;
}
