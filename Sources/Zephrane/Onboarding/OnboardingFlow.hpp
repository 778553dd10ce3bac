#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

// The first-run screens, in the order they are walked.
enum class OnboardingStep { power, channels, diskAccess, preferences, ready };

namespace OnboardingSteps {
inline constexpr int count = 5;
std::optional<OnboardingStep> previous(OnboardingStep step);
std::optional<OnboardingStep> next(OnboardingStep step);
// What a screen reader calls the screen.
QString title(OnboardingStep step);
// The top bar's name for the part of the flow; power has none.
QString section(OnboardingStep step);
} // namespace OnboardingSteps

// Where the walk through the first-run screens stands. The step is not kept across launches: a quit
// in mid-flow starts again at power. Every move is announced with the new screen's title.
class OnboardingFlow : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int step READ stepRaw NOTIFY stepChanged)
    Q_PROPERTY(int count READ count CONSTANT)
    Q_PROPERTY(bool powered READ powered NOTIFY poweredChanged)
    Q_PROPERTY(bool hasPrevious READ hasPrevious NOTIFY stepChanged)
    Q_PROPERTY(QString title READ title NOTIFY stepChanged)
    Q_PROPERTY(QString section READ section NOTIFY stepChanged)
    Q_PROPERTY(QString progressText READ progressText NOTIFY stepChanged)

public:
    using QObject::QObject;

    OnboardingStep step() const { return current; }
    int stepRaw() const { return static_cast<int>(current); }
    int count() const { return OnboardingSteps::count; }
    bool powered() const { return isPowered; }
    bool hasPrevious() const { return OnboardingSteps::previous(current).has_value(); }
    QString title() const { return OnboardingSteps::title(current); }
    QString section() const { return OnboardingSteps::section(current); }
    QString progressText() const;

    // The power key: lights the panel; the view moves on once the logo has come on.
    Q_INVOKABLE void powerOn();
    Q_INVOKABLE void next();
    Q_INVOKABLE void back();
    // Back to a dark panel at the first screen, for a new run of the flow.
    Q_INVOKABLE void restart();

signals:
    void stepChanged();
    void poweredChanged();

private:
    void moveTo(OnboardingStep step);

    OnboardingStep current = OnboardingStep::power;
    bool isPowered = false;
};
