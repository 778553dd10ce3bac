#pragma once

#include <QObject>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <chrono>
#include <functional>
#include <optional>

// The timing of the key that guards what can't be undone. A pointer press fills the key over
// holdDuration and fires only once the press has lasted all of it; an earlier release resets the
// fill, and one well short of the end is marked as given up. Keyboard and assistive users can't
// hold, so their press asks for a confirmation instead. A disabled key neither fills nor fires.
class HoldToConfirmController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double holdDuration READ holdDuration WRITE setHoldDuration NOTIFY holdDurationChanged)
    Q_PROPERTY(bool enabled READ isEnabled WRITE setEnabled NOTIFY stateChanged)
    Q_PROPERTY(bool reducedMotion READ reducedMotion WRITE setReducedMotion NOTIFY stateChanged)
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged)
    Q_PROPERTY(bool holding READ holding NOTIFY stateChanged)
    Q_PROPERTY(bool fired READ fired NOTIFY stateChanged)
    Q_PROPERTY(bool gaveUp READ gaveUp NOTIFY stateChanged)
    Q_PROPERTY(bool flash READ flash NOTIFY stateChanged)
    Q_PROPERTY(bool confirming READ confirming NOTIFY stateChanged)

public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;
    // A release before this share of holdDuration counts as an attempt given up.
    static constexpr double giveUpShare = 0.9;

    explicit HoldToConfirmController(QObject* parent = nullptr);
    // Tests drive time themselves; the default reads the steady clock.
    void setClock(Clock replacement);

    double holdDuration() const { return seconds; }
    void setHoldDuration(double value);
    bool isEnabled() const { return enabled; }
    void setEnabled(bool on);
    bool reducedMotion() const { return lessMotion; }
    void setReducedMotion(bool on);

    double progress() const { return fill; }
    bool holding() const { return pressStart.has_value(); }
    bool fired() const { return hasFired; }
    bool gaveUp() const { return givenUp; }
    bool flash() const { return flashing; }
    bool confirming() const { return asking; }

    // The pointer went down / came up (or the press was taken away).
    Q_INVOKABLE void press();
    Q_INVOKABLE void release();
    // Brings the fill up to date and fires once the whole duration has passed; a timer calls it
    // while the press lasts.
    Q_INVOKABLE void tick();

    // The key press or the accessibility action: raises the confirmation on an enabled key and
    // says whether it did; a disabled key leaves the press to its parents.
    Q_INVOKABLE bool requestConfirmation();
    Q_INVOKABLE void confirm();
    Q_INVOKABLE void cancelConfirmation();
    // The view calls this when the flash has faded.
    Q_INVOKABLE void endFlash();

signals:
    void action();
    void holdDurationChanged();
    void progressChanged();
    void stateChanged();

private:
    std::chrono::steady_clock::duration elapsed() const;
    std::chrono::steady_clock::duration whole() const;
    void fire();
    void setProgress(double value);
    void endPress();

    Clock clock;
    QTimer ticker;
    double seconds = 1.5;
    bool enabled = true;
    bool lessMotion = false;
    double fill = 0;
    std::optional<std::chrono::steady_clock::time_point> pressStart;
    bool hasFired = false;
    bool givenUp = false;
    bool flashing = false;
    bool asking = false;
};
