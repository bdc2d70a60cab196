#include "editor/canvas/EditorCropTransition.h"

#include "controls/Motion.h"

#include <QPainter>

namespace tembra {

EditorCropTransition::EditorCropTransition(QPixmap fragment, const QRectF &sourceRect,
                                           const QColor &background, QWidget *canvas)
    : QWidget(canvas),
      m_fragment(std::move(fragment)),
      m_sourceRect(sourceRect),
      m_destinationRect(sourceRect),
      m_background(background) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(canvas->rect());
    show();
}

void EditorCropTransition::animate(const QRectF &to, std::function<void(bool)> completion) {
    m_destinationRect = to;
    if (motion::isReduced(*this))
        return completion(true);
    m_progress.setStartValue(0.0);
    m_progress.setEndValue(1.0);
    m_progress.setDuration(static_cast<int>(motion::fade.count()));
    m_progress.setEasingCurve(QEasingCurve::InOutCubic);
    connect(&m_progress, &QVariantAnimation::valueChanged, this, [this] { update(); });
    connect(&m_progress, &QVariantAnimation::finished, this,
            [completion = std::move(completion)] { completion(true); });
    m_progress.start();
}

void EditorCropTransition::paintEvent(QPaintEvent *) {
    const double part = m_progress.currentValue().toDouble();
    const auto between = [part](double from, double to) { return from + (to - from) * part; };
    const QRectF place(between(m_sourceRect.x(), m_destinationRect.x()),
                       between(m_sourceRect.y(), m_destinationRect.y()),
                       between(m_sourceRect.width(), m_destinationRect.width()),
                       between(m_sourceRect.height(), m_destinationRect.height()));
    QPainter painter(this);
    painter.fillRect(rect(), m_background);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(place, m_fragment, m_fragment.rect());
}

} // namespace tembra
