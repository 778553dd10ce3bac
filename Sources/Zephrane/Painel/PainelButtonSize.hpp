#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

// The sizes of a key; PainelTheme holds the metrics of each.
namespace PainelButtonSize {
Q_NAMESPACE
QML_ELEMENT

enum Value { Small, Regular, Large };
Q_ENUM_NS(Value)

} // namespace PainelButtonSize
