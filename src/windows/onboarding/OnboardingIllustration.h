#pragma once

#include "windows/onboarding/OnboardingScene.h"

#include <QImage>
#include <QVariantAnimation>
#include <QWidget>

namespace tembra {

// A miniature desktop with the shelf at its top edge. It moves only while it can be seen, and not where the
// desktop wants no motion.
class OnboardingIllustration final : public QWidget {
    Q_OBJECT

public:
    explicit OnboardingIllustration(QWidget *parent = nullptr);

    // A scene that is shown already goes on; `capture` is what the caught one shows.
    void show(OnboardingScene scene, const QImage &capture);
    // From the beginning of the scene.
    void restart();
    [[nodiscard]] bool isMoving() const { return m_animation.state() == QAbstractAnimation::Running; }
    [[nodiscard]] const OnboardingFrame &frame() const { return m_frame; }

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void advance();
    void paintShelf(QPainter &painter) const;
    void paintNotification(QPainter &painter) const;

    OnboardingScene m_scene = OnboardingScene::introduction;
    QImage m_capture;
    OnboardingFrame m_frame;
    QVariantAnimation m_animation;
};

} // namespace tembra
