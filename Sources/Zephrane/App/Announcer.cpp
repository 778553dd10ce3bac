#include "App/Announcer.hpp"

#include <QAccessible>
#include <QGuiApplication>
#include <QWindow>

namespace {

// Qt 6.4 has no announcement event: a value change with the text on the active window is what
// screen readers pick up from it.
void postToPlatform(const QString& text) {
    if (!QAccessible::isActive())
        return;
    QWindow* window = QGuiApplication::focusWindow();
    if (!window) {
        const auto windows = QGuiApplication::topLevelWindows();
        if (windows.isEmpty())
            return;
        window = windows.first();
    }
    QAccessibleValueChangeEvent event(window, text);
    QAccessible::updateAccessibility(&event);
}

Announcer::Sink& currentSink() {
    static Announcer::Sink sink;
    return sink;
}

} // namespace

void Announcer::announce(const QString& text) {
    if (text.isEmpty())
        return;
    if (const Sink& sink = currentSink())
        sink(text);
    else
        postToPlatform(text);
}

Announcer::Sink Announcer::installSink(Sink sink) {
    Sink previous = std::move(currentSink());
    currentSink() = std::move(sink);
    return previous;
}
