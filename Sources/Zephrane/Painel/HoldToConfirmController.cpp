#include "Painel/HoldToConfirmController.hpp"

#include <algorithm>

using namespace std::chrono;

HoldToConfirmController::HoldToConfirmController(QObject* parent)
    : QObject(parent), clock([] { return steady_clock::now(); }) {
    ticker.setInterval(16);
    ticker.setTimerType(Qt::PreciseTimer);
    connect(&ticker, &QTimer::timeout, this, &HoldToConfirmController::tick);
}

void HoldToConfirmController::setClock(Clock replacement) {
    clock = std::move(replacement);
}

void HoldToConfirmController::setHoldDuration(double value) {
    value = std::max(value, 0.0);
    if (value == seconds)
        return;
    seconds = value;
    emit holdDurationChanged();
}

void HoldToConfirmController::setEnabled(bool on) {
    if (on == enabled)
        return;
    enabled = on;
    // A key that goes dead under the finger drops the attempt; it must not fire later.
    if (!enabled) {
        endPress();
        asking = false;
    }
    emit stateChanged();
}

void HoldToConfirmController::setReducedMotion(bool on) {
    if (on == lessMotion)
        return;
    lessMotion = on;
    emit stateChanged();
}

steady_clock::duration HoldToConfirmController::whole() const {
    return duration_cast<steady_clock::duration>(duration<double>(seconds));
}

steady_clock::duration HoldToConfirmController::elapsed() const {
    return pressStart ? clock() - *pressStart : steady_clock::duration::zero();
}

void HoldToConfirmController::press() {
    if (!enabled)
        return;
    hasFired = false;
    givenUp = false;
    flashing = false;
    pressStart = clock();
    ticker.start();
    // The view learns that a hold runs before the fill restarts, so it does not animate the reset.
    emit stateChanged();
    setProgress(0);
    // A zero duration has nothing to wait for.
    tick();
}

void HoldToConfirmController::tick() {
    if (!pressStart || hasFired || !enabled)
        return;
    const auto lasted = elapsed();
    const auto total = whole();
    if (lasted >= total) {
        setProgress(1);
        fire();
        return;
    }
    setProgress(duration<double>(lasted).count() / duration<double>(total).count());
}

void HoldToConfirmController::release() {
    if (!pressStart)
        return;
    // A press that did last the whole time fires even if no tick came in between.
    tick();
    if (!hasFired && elapsed() < duration_cast<steady_clock::duration>(whole() * giveUpShare))
        givenUp = true;
    endPress();
    emit stateChanged();
}

void HoldToConfirmController::endPress() {
    ticker.stop();
    pressStart.reset();
    setProgress(0);
}

void HoldToConfirmController::fire() {
    if (!enabled)
        return;
    ticker.stop();
    hasFired = true;
    // There is no haptic engine on this desktop; the flash is the whole acknowledgement.
    flashing = !lessMotion;
    emit stateChanged();
    emit action();
}

bool HoldToConfirmController::requestConfirmation() {
    if (!enabled)
        return false;
    if (!asking) {
        asking = true;
        emit stateChanged();
    }
    return true;
}

void HoldToConfirmController::confirm() {
    if (!asking)
        return;
    asking = false;
    emit stateChanged();
    fire();
}

void HoldToConfirmController::cancelConfirmation() {
    if (!asking)
        return;
    asking = false;
    emit stateChanged();
}

void HoldToConfirmController::endFlash() {
    if (!flashing)
        return;
    flashing = false;
    emit stateChanged();
}

void HoldToConfirmController::setProgress(double value) {
    value = std::clamp(value, 0.0, 1.0);
    if (value == fill)
        return;
    fill = value;
    emit progressChanged();
}
