#pragma once

#include "windows/onboarding/OnboardingStep.h"

#include <QWidget>

#include <vector>

namespace tembra {

class OnboardingDot;

// A dot for each step, the current one drawn out. Those reached lead there.
class OnboardingDots final : public QWidget {
    Q_OBJECT

public:
    explicit OnboardingDots(QWidget *parent = nullptr);

    void show(OnboardingStep current, OnboardingStep reached);

Q_SIGNALS:
    void stepRequested(tembra::OnboardingStep step);

private:
    std::vector<OnboardingDot *> m_dots;
};

} // namespace tembra
