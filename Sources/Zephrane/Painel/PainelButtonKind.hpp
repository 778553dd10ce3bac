#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

// The styles of a key: the accent key for the one action a screen is about, the raised key for
// the rest, the light key where a key must stand out from a dark well.
namespace PainelButtonKind {
Q_NAMESPACE
QML_ELEMENT

enum Value { Accent, Raised, Light };
Q_ENUM_NS(Value)

} // namespace PainelButtonKind
