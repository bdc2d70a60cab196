#include "shelf/PreviewView.h"

#include "controls/Motion.h"
#include "controls/Palette.h"
#include "controls/TembraButton.h"
#include "controls/Typography.h"
#include "shelf/PreviewGeometry.h"
#include "shelf/ScreenshotPreviewImageView.h"

#include <QApplication>
#include <QFileInfo>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace tembra {

namespace {

constexpr QSizeF unknownSize{480, 300};
constexpr qreal windowRadius = 14;
constexpr qreal pictureRadius = 6;
// The window grows from this part of its size.
constexpr qreal openingScale = 0.92;

} // namespace

PreviewView::PreviewView()
    : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                           Qt::BypassWindowManagerHint | Qt::WindowDoesNotAcceptFocus |
                           Qt::NoDropShadowWindowHint),
      m_open(new TembraButton(TembraButton::Kind::plain, this)) {
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setWindowTitle(tr("Preview"));
    setAccessibleName(tr("Preview"));
    m_open->setFocusPolicy(Qt::NoFocus);
    connect(m_open, &TembraButton::clicked, this, [this] {
        if (isStillRecording())
            Q_EMIT openWithRequested(m_open->mapToGlobal(m_open->rect().bottomLeft()));
        else
            Q_EMIT openRequested();
    });
    m_opening.setDuration(static_cast<int>(motion::fade.count()));
    m_opening.setStartValue(0.0);
    m_opening.setEndValue(1.0);
    m_opening.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_opening, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
}

void PreviewView::present(const std::vector<PreviewItem> &items, const QRectF &available) {
    const bool isSameFile = items.size() == 1 && m_items.size() == 1 && items[0].path == m_items[0].path;
    m_items = items;
    if (!isSameFile) {
        m_isActualSize = false;
        m_offset = {};
    }
    setAccessibleDescription(title());
    updateButton();
    setGeometry(PreviewGeometry::window(sizes(), available).toRect());
    setCursor(canShowActualSize() ? Qt::PointingHandCursor : Qt::ArrowCursor);
    const bool wasVisible = isVisible();
    show();
    raise();
    if (!wasVisible && !motion::isReduced(*this))
        m_opening.start();
    update();
}

bool PreviewView::isStillRecording() const {
    return m_items.size() == 1 && m_items.front().isRecording && !m_items.front().isPlayed;
}

void PreviewView::updateButton() {
    m_open->setText(isStillRecording() ? tr("Open With") : tr("Open"));
    m_open->resize(m_open->sizeHint());
    placeButton();
}

void PreviewView::dismiss() {
    m_opening.stop();
    hide();
    m_items.clear();
}

void PreviewView::setActualSize(bool actual) {
    m_isActualSize = actual && canShowActualSize();
    m_offset = {};
    update();
}

std::vector<QSizeF> PreviewView::sizes() const {
    std::vector<QSizeF> sizes;
    for (const PreviewItem &item : m_items)
        sizes.push_back(item.image.isNull() ? unknownSize : QSizeF(item.image.size()) / devicePixelRatioF());
    return sizes;
}

bool PreviewView::canShowActualSize() const {
    return m_items.size() == 1 && !m_items[0].image.isNull() &&
           sizes().front().width() > PreviewGeometry::row(sizes(), size()).front().width() + 1;
}

QString PreviewView::title() const {
    if (m_items.size() != 1)
        return tr("%n files", nullptr, static_cast<int>(m_items.size()));
    const PreviewItem &item = m_items.front();
    QString name = QFileInfo(item.path).fileName();
    if (item.isLoaded && item.image.isNull())
        return tr("%1 cannot be shown").arg(name);
    if (item.image.isNull() || item.isRecording)
        return name;
    return tr("%1 · %2 × %3")
        .arg(name, QString::number(item.image.width()), QString::number(item.image.height()));
}

QRectF PreviewView::pictureArea() const {
    return QRectF(rect()).adjusted(0, 0, 0, -PreviewGeometry::footer);
}

void PreviewView::paintEvent(QPaintEvent *) {
    if (m_items.empty())
        return;
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    if (m_opening.state() == QAbstractAnimation::Running) {
        const qreal progress = m_opening.currentValue().toReal();
        const qreal scale = openingScale + (1 - openingScale) * progress;
        painter.setOpacity(progress);
        painter.translate(rect().center());
        painter.scale(scale, scale);
        painter.translate(-rect().center());
    }
    painter.setPen(palette::menuBorder);
    painter.setBrush(palette::panel);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), windowRadius, windowRadius);
    if (m_isActualSize)
        paintActualSize(painter);
    else {
        const auto places = PreviewGeometry::row(sizes(), size());
        for (std::size_t i = 0; i < m_items.size(); ++i)
            paintItem(painter, m_items[i], places[i]);
    }
    paintFooter(painter);
}

void PreviewView::paintItem(QPainter &painter, const PreviewItem &item, const QRectF &place) const {
    if (!item.image.isNull())
        return ScreenshotPreviewImageView::draw(painter, place, item.image, pictureRadius);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette::group);
    painter.drawRoundedRect(place, pictureRadius, pictureRadius);
}

void PreviewView::paintActualSize(QPainter &painter) const {
    painter.save();
    const QRectF area =
        pictureArea().adjusted(PreviewGeometry::margin, PreviewGeometry::margin, -PreviewGeometry::margin, 0);
    painter.setClipRect(area);
    QRectF picture({}, sizes().front());
    picture.moveCenter(area.center() + m_offset);
    painter.drawImage(picture, m_items.front().image);
    painter.restore();
}

void PreviewView::paintFooter(QPainter &painter) const {
    painter.setFont(typography::font(typography::itemSize));
    painter.setPen(palette::secondaryText);
    QRectF line(0, height() - PreviewGeometry::footer, m_open->x() - PreviewGeometry::spacing,
                PreviewGeometry::footer);
    line.setLeft(PreviewGeometry::margin);
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    painter.drawText(
        line, Qt::AlignLeft | Qt::AlignVCenter,
        painter.fontMetrics().elidedText(title(), Qt::ElideMiddle, static_cast<int>(line.width())));
}

void PreviewView::resizeEvent(QResizeEvent *) {
    placeButton();
}

void PreviewView::placeButton() {
    m_open->move(width() - m_open->width() - static_cast<int>(PreviewGeometry::margin) + 3,
                 height() - static_cast<int>(PreviewGeometry::footer + m_open->height()) / 2);
}

void PreviewView::mousePressEvent(QMouseEvent *event) {
    m_pressed = event->position();
    m_isPanning = false;
}

void PreviewView::mouseMoveEvent(QMouseEvent *event) {
    const QPointF moved = event->position() - m_pressed;
    if (!m_isActualSize || !(event->buttons() & Qt::LeftButton))
        return;
    if (!m_isPanning && moved.manhattanLength() < QApplication::startDragDistance())
        return;
    m_isPanning = true;
    m_pressed = event->position();
    const QSizeF room = (sizes().front() - pictureArea().size()).expandedTo({0, 0}) / 2;
    m_offset.setX(std::clamp(m_offset.x() + moved.x(), -room.width(), room.width()));
    m_offset.setY(std::clamp(m_offset.y() + moved.y(), -room.height(), room.height()));
    update();
}

void PreviewView::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() != Qt::LeftButton || m_isPanning)
        return;
    if (m_items.size() == 1 && m_items.front().isPlayed)
        Q_EMIT pauseToggled();
    else
        setActualSize(!m_isActualSize);
}

} // namespace tembra
