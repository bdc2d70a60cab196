#include "windows/onboarding/OnboardingScene.h"

#include <algorithm>

namespace tembra {

namespace {

using Time = OnboardingFrame::Time;

constexpr Time introductionLength{5.4};
constexpr Time arrives{1.4};
constexpr Time opens{1.45};
constexpr Time closes{4.15};
// While the shelf is open and the pointer rests on it.
constexpr Time open{3};

constexpr QPointF aside{318, 168};
constexpr QPointF atEdge{212, 3};
constexpr QPointF onShelf{226, 62};

// From one point to another as a hand goes: it starts and ends slowly.
QPointF between(const QPointF &from, const QPointF &to, Time start, Time end, Time time) {
    const double way = std::clamp((time - start) / (end - start), 0.0, 1.0);
    return from + (to - from) * (way * way * (3 - 2 * way));
}

double spring(double from, double to, Time elapsed) {
    SpringMotion motion(from);
    motion.retarget(to, Time::zero());
    return motion.value(elapsed);
}

QPointF introductionPointer(Time time) {
    if (time < Time(1.7))
        return between(aside, atEdge, Time(0.5), arrives, time);
    if (time < Time(3.4))
        return between(atEdge, onShelf, Time(1.8), Time(2.4), time);
    return between(onShelf, aside, Time(3.6), Time(4.5), time);
}

double introductionOpenness(Time time) {
    if (time < opens)
        return 0;
    return time < closes ? spring(0, 1, time - opens) : spring(1, 0, time - closes);
}

} // namespace

OnboardingFrame OnboardingFrame::of(OnboardingScene scene, Time time) {
    switch (scene) {
    case OnboardingScene::introduction:
        return {introductionOpenness(time), introductionPointer(time)};
    case OnboardingScene::shelf:
        return {1, std::nullopt};
    case OnboardingScene::waiting:
        return {0, std::nullopt};
    case OnboardingScene::caught:
        return {spring(0, 1, time), std::nullopt};
    }
    Q_UNREACHABLE();
}

OnboardingFrame OnboardingFrame::still(OnboardingScene scene) {
    return of(scene, open);
}

OnboardingFrame::Time OnboardingFrame::duration(OnboardingScene scene) {
    switch (scene) {
    case OnboardingScene::introduction:
        return introductionLength;
    case OnboardingScene::caught:
        return SpringMotion::settling;
    case OnboardingScene::shelf:
    case OnboardingScene::waiting:
        return Time::zero();
    }
    Q_UNREACHABLE();
}

} // namespace tembra
