#pragma once

#include "Painel/ByteParts.hpp"

#include <QObject>
#include <QtQml/qqmlregistration.h>

// Byte counts as text for views that show a size in a line of prose rather than in LED digits.
// Stateless; an empty locale means the application's language.
class ByteFormat : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    // "1.2 MB"
    Q_INVOKABLE static QString text(double bytes, const QString& locale = {});
    // "1.2 megabytes"
    Q_INVOKABLE static QString spoken(double bytes, const QString& locale = {});
    Q_INVOKABLE static ByteParts parts(double bytes, const QString& locale = {});
};
