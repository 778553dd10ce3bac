#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <functional>

// Speaks a short text to assistive technology. Stateless for its users: everything that announces
// goes through announce(), and tests replace where the words go with installSink().
class Announcer : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using Sink = std::function<void(const QString&)>;
    explicit Announcer(QObject* parent = nullptr);
    ~Announcer() override;

    static void announce(const QString& text);
    Q_INVOKABLE void say(const QString& text) { announce(text); }

    // Replaces the destination of announcements and returns the previous one; an empty sink
    // restores the platform's.
    static Sink installSink(Sink sink);

signals:
    // The platform's destination: the main window's AnnouncementNotice turns this into what a
    // screen reader speaks.
    void spoken(const QString& text);
};
