#include "Modules/Trash/VolumeTrash.hpp"

#include "Modules/Trash/TrashText.hpp"
#include "Painel/ByteFormat.hpp"

QString VolumeTrash::sizeText() const {
    return ByteFormat::text(static_cast<double>(bytes));
}

QString VolumeTrash::countText() const {
    return TrashText::items(count);
}
