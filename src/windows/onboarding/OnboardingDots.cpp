#include "windows/onboarding/OnboardingDots.h"

#include "windows/onboarding/OnboardingDot.h"

#include <QHBoxLayout>

namespace tembra {

OnboardingDots::OnboardingDots(QWidget *parent) : QWidget(parent) {
    setAccessibleName(tr("Steps"));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    for (int number = 0; number < onboardingStepCount; ++number) {
        auto *dot = new OnboardingDot(this);
        dot->setAccessibleName(tr("Step %1 of %2").arg(number + 1).arg(onboardingStepCount));
        const auto step = static_cast<OnboardingStep>(number);
        connect(dot, &QAbstractButton::clicked, this, [this, step] { Q_EMIT stepRequested(step); });
        row->addWidget(dot);
        m_dots.push_back(dot);
    }
}

void OnboardingDots::show(OnboardingStep current, OnboardingStep reached) {
    for (int number = 0; number < onboardingStepCount; ++number) {
        OnboardingDot *dot = m_dots.at(static_cast<std::size_t>(number));
        const auto step = static_cast<OnboardingStep>(number);
        dot->setChecked(step == current);
        dot->setEnabled(step <= reached);
    }
}

} // namespace tembra
