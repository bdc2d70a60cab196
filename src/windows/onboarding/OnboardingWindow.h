#pragma once

#include "windows/onboarding/OnboardingPage.h"

#include <QWidget>

class QLabel;

namespace tembra {

class OnboardingDots;
class OnboardingIllustration;
class TembraButton;
class TembraLinkButton;

// The window of the onboarding: shows a state, and tells what the user wants. Main thread.
class OnboardingWindow final : public QWidget {
    Q_OBJECT

public:
    static constexpr QSize contentSize{600, 560};

    OnboardingWindow();

    void apply(const OnboardingState &state);
    // In front of every other window, active; on the pointer's display if it was not shown.
    void present();
    // The scene that is shown, from its beginning.
    void restartAnimation();

    [[nodiscard]] const OnboardingPage &page() const { return m_page; }

Q_SIGNALS:
    void primaryRequested();
    void secondaryRequested();
    void linkRequested();
    void stepRequested(tembra::OnboardingStep step);
    void closed();

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void layOut();
    // As large as there is room, in points.
    void fitInto(QSize room);
    void connectControls();
    void addShortcut(const QKeySequence &key, int steps);
    void applyColors();
    void setText(const QString &text);
    void focusDefault();
    // To a step beside the current one, if it was reached.
    void go(int steps);

    OnboardingPage m_page;
    OnboardingState m_state;
    OnboardingIllustration *m_illustration;
    QLabel *m_heading;
    QLabel *m_text;
    QLabel *m_path;
    TembraButton *m_primary;
    TembraButton *m_secondary;
    TembraLinkButton *m_link;
    QLabel *m_note;
    OnboardingDots *m_dots;
};

} // namespace tembra
