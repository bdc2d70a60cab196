#include "windows/onboarding/OnboardingIllustration.h"

#include "controls/Motion.h"
#include "controls/Palette.h"
#include "shelf/ShelfPanelShape.h"

#include <QPainter>
#include <QPainterPath>

#include <array>

namespace tembra {

namespace {

constexpr double cornerRadius = 16;
// The shelf's outline is drawn smaller, as the desktop is.
constexpr double shapeScale = 0.72;
constexpr QSizeF shelfSize{280, 104};
constexpr QSizeF notificationSize{196, 64};
// What hangs from the edge is that much of its width before it comes down.
constexpr double closedWidth = 0.55;

constexpr QColor desktopStart{67, 82, 123};
constexpr QColor desktopEnd{168, 110, 126};
constexpr QColor windowLight{244, 244, 247};
constexpr QColor windowDark{24, 24, 28};
constexpr QColor windowWarm{255, 246, 236};
constexpr QColor lineLight{216, 216, 221};
constexpr QColor lineWarm{222, 212, 202};
constexpr QColor violet{99, 102, 241};
constexpr QColor cyan{34, 211, 238};
constexpr QColor orange{249, 115, 22};

QRectF hangingBody(const QSizeF &size, double openness) {
    const double width = size.width() * (closedWidth + (1 - closedWidth) * openness);
    return {(OnboardingFrame::width - width) / 2, 0, width, size.height() * openness};
}

QPainterPath outline(const QRectF &body) {
    const QTransform shrink = QTransform::fromScale(shapeScale, shapeScale);
    return shrink.map(ShelfPanelShape::path(shrink.inverted().mapRect(body)));
}

// A window of some program, its content drawn by the caller in the space of a window of 73 × 49 points.
void paintWindow(QPainter &painter, const QColor &fill, const QColor &bar) {
    constexpr QRectF frame(0, 0, 73, 49);
    QPainterPath shape;
    shape.addRoundedRect(frame, 4, 4);
    painter.fillPath(shape, fill);
    QPainterPath top;
    top.addRect(0, 0, 73, 7.5);
    painter.fillPath(shape.intersected(top), bar);
    constexpr std::array lights{QColor(240, 110, 70), QColor(245, 180, 90), QColor(110, 120, 130)};
    for (std::size_t light = 0; light < lights.size(); ++light) {
        painter.setBrush(lights.at(light));
        painter.drawEllipse(QPointF(5 + 4.6 * static_cast<double>(light), 3.8), 1.4, 1.4);
    }
}

void paintPage(QPainter &painter) {
    paintWindow(painter, windowLight, lineLight);
    painter.fillRect(QRectF(5, 12, 17.5, 32), lineLight);
    painter.fillRect(QRectF(27, 12, 41, 13), violet);
    double y = 29;
    for (const double width : {34.0, 38.0, 25.0}) {
        painter.fillRect(QRectF(27, y, width, 2), lineLight);
        y += 5.4;
    }
}

void paintChart(QPainter &painter) {
    paintWindow(painter, windowDark, QColor(58, 58, 66));
    double x = 7;
    for (const double height : {10.0, 18.0, 26.0, 11.0, 19.0, 4.5}) {
        painter.fillRect(QRectF(x, 44 - height, 6.4, height), cyan);
        x += 10.5;
    }
}

void paintText(QPainter &painter) {
    paintWindow(painter, windowWarm, lineWarm);
    double y = 12;
    int line = 0;
    for (const double width : {43.0, 57.0, 33.0, 48.0, 24.0, 38.0, 54.0}) {
        painter.fillRect(QRectF(6, y, width, 2.4), line++ % 3 == 0 ? orange : lineWarm);
        y += 4.9;
    }
}

// The window of which a screenshot is to be taken, with the corners of what would be taken.
void paintTarget(QPainter &painter, bool isAimedAt) {
    painter.save();
    painter.translate(137, 72);
    painter.scale(2, 2);
    paintPage(painter);
    painter.restore();
    if (!isAimedAt)
        return;
    constexpr QRectF area(125, 60, 170, 122);
    constexpr double arm = 14;
    painter.setPen(QPen(Qt::white, 2.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    for (const auto &[corner, right, down] :
         {std::tuple(area.topLeft(), arm, arm), std::tuple(area.topRight(), -arm, arm),
          std::tuple(area.bottomLeft(), arm, -arm), std::tuple(area.bottomRight(), -arm, -arm)})
        painter.drawPolyline(QPolygonF{corner + QPointF(0, down), corner, corner + QPointF(right, 0)});
    painter.setPen(Qt::NoPen);
}

void paintPointer(QPainter &painter, const QPointF &tip) {
    const QPolygonF arrow{tip,
                          tip + QPointF(0, 17),
                          tip + QPointF(4, 13.2),
                          tip + QPointF(6.8, 19.4),
                          tip + QPointF(9.4, 18.2),
                          tip + QPointF(6.7, 12.2),
                          tip + QPointF(12, 12)};
    painter.setPen(QPen(Qt::white, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(QColor(17, 17, 19));
    painter.drawPolygon(arrow);
    painter.setPen(Qt::NoPen);
}

} // namespace

OnboardingIllustration::OnboardingIllustration(QWidget *parent) : QWidget(parent) {
    setFixedSize(sizeHint());
    m_animation.setStartValue(0.0);
    m_animation.setEndValue(1.0);
    connect(&m_animation, &QVariantAnimation::valueChanged, this, &OnboardingIllustration::advance);
    connect(&m_animation, &QVariantAnimation::currentLoopChanged, this, [this] {
        if (motion::isReduced(*this))
            restart();
    });
    restart();
}

QSize OnboardingIllustration::sizeHint() const {
    return QSizeF(OnboardingFrame::width, OnboardingFrame::height).toSize();
}

void OnboardingIllustration::show(OnboardingScene scene, const QImage &capture) {
    m_capture = capture;
    if (scene != m_scene) {
        m_scene = scene;
        restart();
    }
    update();
}

void OnboardingIllustration::restart() {
    m_animation.stop();
    const auto length =
        std::chrono::duration_cast<std::chrono::milliseconds>(OnboardingFrame::duration(m_scene));
    const bool moves = length.count() > 0 && isVisible() && !motion::isReduced(*this);
    m_frame = moves ? OnboardingFrame::of(m_scene, {}) : OnboardingFrame::still(m_scene);
    update();
    if (!moves)
        return;
    m_animation.setDuration(static_cast<int>(length.count()));
    m_animation.setLoopCount(m_scene == OnboardingScene::introduction ? -1 : 1);
    m_animation.start();
}

void OnboardingIllustration::advance() {
    const OnboardingFrame next =
        OnboardingFrame::of(m_scene, std::chrono::milliseconds(m_animation.currentLoopTime()));
    if (next == m_frame)
        return;
    m_frame = next;
    update();
}

void OnboardingIllustration::showEvent(QShowEvent *) {
    restart();
}

void OnboardingIllustration::hideEvent(QHideEvent *) {
    m_animation.stop();
}

void OnboardingIllustration::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setPen(Qt::NoPen);
    QLinearGradient desktop(0, 0, width(), height());
    desktop.setColorAt(0, desktopStart);
    desktop.setColorAt(1, desktopEnd);
    painter.setBrush(desktop);
    painter.drawRoundedRect(QRectF(rect()), cornerRadius, cornerRadius);
    const bool isAboutCapture = m_scene == OnboardingScene::waiting || m_scene == OnboardingScene::caught;
    if (isAboutCapture)
        paintTarget(painter, m_scene == OnboardingScene::waiting);
    if (m_frame.openness > 0) {
        if (isAboutCapture)
            paintNotification(painter);
        else
            paintShelf(painter);
    }
    if (m_frame.pointer)
        paintPointer(painter, *m_frame.pointer);
}

void OnboardingIllustration::paintShelf(QPainter &painter) const {
    const QPainterPath shelf = outline(hangingBody(shelfSize, m_frame.openness));
    painter.fillPath(shelf, palette::panel);
    painter.save();
    painter.setClipPath(shelf);
    painter.setOpacity(m_frame.openness);
    // The content hangs from the bottom of what comes down.
    painter.translate(87, 33 - shelfSize.height() * (1 - m_frame.openness));
    for (const auto &paintContent : {paintPage, paintChart, paintText}) {
        paintContent(painter);
        painter.translate(86, 0);
    }
    painter.restore();
}

void OnboardingIllustration::paintNotification(QPainter &painter) const {
    const QRectF body = hangingBody(notificationSize, m_frame.openness);
    const QPainterPath panel = outline(body);
    painter.fillPath(panel, palette::panel);
    painter.save();
    painter.setClipPath(panel);
    painter.setOpacity(m_frame.openness);
    const double top = body.bottom() - notificationSize.height();
    constexpr QSizeF room(60, 40);
    const QPointF corner((OnboardingFrame::width - notificationSize.width()) / 2 + 14, top + 12);
    QRectF place(corner,
                 m_capture.isNull() ? room : QSizeF(m_capture.size()).scaled(room, Qt::KeepAspectRatio));
    place.moveCenter(corner + QPointF(room.width() / 2, room.height() / 2));
    QPainterPath frame;
    frame.addRoundedRect(place, 4, 4);
    painter.setClipPath(frame, Qt::IntersectClip);
    painter.fillRect(place, palette::groupActive);
    painter.drawImage(place, m_capture);
    painter.setClipPath(panel);
    painter.setBrush(palette::text);
    painter.drawRoundedRect(QRectF(corner + QPointF(74, 11), QSizeF(88, 6)), 3, 3);
    painter.setBrush(palette::secondaryText);
    painter.drawRoundedRect(QRectF(corner + QPointF(74, 24), QSizeF(60, 5)), 2.5, 2.5);
    painter.restore();
}

} // namespace tembra
