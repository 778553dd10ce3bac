#include "Onboarding/OnboardingFlow.hpp"

#include "App/Announcer.hpp"

namespace OnboardingSteps {

std::optional<OnboardingStep> previous(OnboardingStep step) {
    if (step == OnboardingStep::power)
        return std::nullopt;
    return static_cast<OnboardingStep>(static_cast<int>(step) - 1);
}

std::optional<OnboardingStep> next(OnboardingStep step) {
    if (step == OnboardingStep::ready)
        return std::nullopt;
    return static_cast<OnboardingStep>(static_cast<int>(step) + 1);
}

QString title(OnboardingStep step) {
    switch (step) {
    case OnboardingStep::power: return qtTrId("onboarding.power.a11yTitle");
    case OnboardingStep::channels: return qtTrId("onboarding.channels.a11yTitle");
    case OnboardingStep::diskAccess: return qtTrId("onboarding.disk.title");
    case OnboardingStep::preferences: return qtTrId("onboarding.preferences.a11yTitle");
    case OnboardingStep::ready: return qtTrId("onboarding.ready.a11yTitle");
    }
    return {};
}

QString section(OnboardingStep step) {
    switch (step) {
    case OnboardingStep::power: return {};
    case OnboardingStep::channels: return qtTrId("onboarding.channels.section");
    case OnboardingStep::diskAccess: return qtTrId("onboarding.disk.section");
    case OnboardingStep::preferences: return qtTrId("onboarding.preferences.section");
    case OnboardingStep::ready: return qtTrId("onboarding.ready.section");
    }
    return {};
}

} // namespace OnboardingSteps

QString OnboardingFlow::progressText() const {
    return qtTrId("onboarding.progress").arg(stepRaw() + 1).arg(count());
}

void OnboardingFlow::powerOn() {
    if (isPowered)
        return;
    isPowered = true;
    emit poweredChanged();
}

void OnboardingFlow::next() {
    if (auto step = OnboardingSteps::next(current))
        moveTo(*step);
}

void OnboardingFlow::back() {
    if (auto step = OnboardingSteps::previous(current))
        moveTo(*step);
}

void OnboardingFlow::restart() {
    if (isPowered) {
        isPowered = false;
        emit poweredChanged();
    }
    if (current != OnboardingStep::power) {
        current = OnboardingStep::power;
        emit stepChanged();
    }
}

void OnboardingFlow::moveTo(OnboardingStep step) {
    current = step;
    emit stepChanged();
    Announcer::announce(qtTrId("onboarding.progress.announce").arg(title()));
}
