#pragma once

#include <QQuickItem>

// Shared by the kit's painted items.
namespace PainelCanvas {

// Stores a property's new value and schedules a repaint; the same value does nothing. Says whether
// it changed, so the caller knows to notify.
template <typename T> bool store(QQuickItem* item, T& field, const T& value) {
    if (field == value)
        return false;
    field = value;
    item->update();
    return true;
}

} // namespace PainelCanvas
