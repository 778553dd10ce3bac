#pragma once

#include <QString>
#include <QStringList>

class QQuickWindow;

namespace QmlTestSupport {

// Collects every warning and critical message (QML binding errors, missing types...) from the
// moment it is made; tests fail when any was seen.
class WarningCollector {
public:
    WarningCollector();
    ~WarningCollector();
    WarningCollector(const WarningCollector&) = delete;
    WarningCollector& operator=(const WarningCollector&) = delete;

    QStringList take();
};

// Lets animations and pending layouts run for a moment.
void settle(int milliseconds = 50);

// Renders the window and writes build/screenshots/<name>.png for people to look at.
QString saveScreenshot(QQuickWindow& window, const QString& name);

// Switches the interface and engine language (en or pt-BR) for the tests that follow.
void useLanguage(const QString& localization);

} // namespace QmlTestSupport
