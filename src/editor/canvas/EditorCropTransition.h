#pragma once

#include <QPixmap>
#include <QRectF>
#include <QVariantAnimation>
#include <QWidget>

#include <functional>

namespace tembra {

// Shown over the canvas while the view goes from the whole image to what a crop keeps of it, or back: the
// part that both show moves from its one place to the other. View space. The canvas is the parent.
class EditorCropTransition final : public QWidget {
    Q_OBJECT

public:
    // `fragment` is what is seen at `sourceRect`; around it `background` is seen.
    EditorCropTransition(QPixmap fragment, const QRectF &sourceRect, const QColor &background,
                         QWidget *canvas);

    // The completion gets whether it went to the end. Without motion it is called at once.
    void animate(const QRectF &to, std::function<void(bool isFinished)> completion);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const QPixmap m_fragment;
    const QRectF m_sourceRect;
    QRectF m_destinationRect;
    const QColor m_background;
    QVariantAnimation m_progress;
};

} // namespace tembra
