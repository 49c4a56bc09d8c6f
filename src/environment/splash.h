#pragma once

// The splash's little show, told in ticks of its timer: the logo stands in its own colours,
// the plate under it blinks away, the logo comes back embossed in the plate and a little
// low, blinks once more and rises into its place; at the last tick the splash is over.

// The ticks of a whole splash; at the usual length a tick is half a second.
constexpr int kSplashTicks = 15;

// What stands on the splash once the timer has ticked so many times.
struct SplashScene {
    bool normalLogo = false;
    bool embossedLogo = false;
    bool plate = false;
    // The embossed logo stands in the place of the logo in colour, no longer below it.
    bool embossedRisen = false;
    bool over = false;
};

SplashScene splashSceneAt(int ticks);

// The timer's interval for a splash that stands lengthMs milliseconds in all.
int splashTickInterval(int lengthMs);
