#include "environment/splash.h"

#include <QtGlobal>

#include <algorithm>

SplashScene splashSceneAt(int ticks) {
    SplashScene scene;
    if (ticks >= kSplashTicks) {
        scene.over = true;
    } else if (ticks < 5) {
        scene.normalLogo = true;
        scene.plate = true;
    } else if (ticks != 5 && ticks != 10) {
        scene.embossedLogo = true;
        scene.plate = true;
        scene.embossedRisen = ticks >= 11;
    }
    // Ticks 5 and 10 leave the splash bare for a moment; the scene is then empty.
    return scene;
}

int splashTickInterval(int lengthMs) {
    return std::max(1, qRound(lengthMs / double(kSplashTicks)));
}
