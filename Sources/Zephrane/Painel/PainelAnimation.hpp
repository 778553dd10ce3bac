#pragma once

// The one rule every animated effect of the panel follows: with reduced motion nothing moves, and
// whatever would have animated takes its end state at once.
namespace PainelAnimation {

// The time an effect takes: zero under reduced motion.
constexpr int duration(int milliseconds, bool reducedMotion) {
    return reducedMotion ? 0 : milliseconds;
}

// Eases out a step's progress t in [0, 1] (cubic), as the dot-matrix power-on does per step.
constexpr double easeOut(double t) {
    const double clamped = t < 0 ? 0 : (t > 1 ? 1 : t);
    const double rest = 1 - clamped;
    return 1 - rest * rest * rest;
}

} // namespace PainelAnimation
