#include "shelf/CaptureNotificationView.h"

#include "controls/Palette.h"
#include "controls/SpokenNotice.h"
#include "controls/TembraButton.h"
#include "controls/Typography.h"
#include "shelf/FileDrag.h"
#include "shelf/ScreenshotPreviewImageView.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include <array>
#include <utility>

namespace tembra {

namespace {

constexpr QSizeF previewSize{72, 50};
constexpr double previewSide = 72;
constexpr int textLeft = 150;
constexpr int textLeftWithoutPreviews = 26;

// How the pictures lie, the foremost first: their middle and their turn in degrees.
struct Pose {
    QPointF middle;
    double degrees = 0;
};
constexpr std::array<Pose, 3> stack{Pose{{91, 42}, 4}, Pose{{74, 44}, -2}, Pose{{57, 45}, -5}};
constexpr Pose alone{{74, 42}, -3};

} // namespace

CaptureNotificationView::CaptureNotificationView(Thumbnails &thumbnails, const FileFactsReader &files,
                                                 QWidget *parent)
    : QWidget(parent),
      m_thumbnails(thumbnails),
      m_files(files),
      m_undo(new TembraButton(TembraButton::Kind::plain, this)) {
    m_undo->setText(tr("Undo"));
    m_undo->resize(m_undo->sizeHint());
    m_undo->hide();
    connect(m_undo, &TembraButton::clicked, this, &CaptureNotificationView::undoClicked);
}

void CaptureNotificationView::apply(const CaptureNotification &notification) {
    if (notification == m_notification)
        return;
    m_notification = notification;
    m_undo->setVisible(notification.offersUndo);
    setAccessibleName(notification.text);
    setAccessibleDescription(notification.detail());
    SpokenNotice::readAgain(*this);
    std::erase_if(m_requests,
                  [&](const auto &entry) { return !notification.previews.contains(entry.first); });
    m_images.removeIf([&](const auto &entry) { return !notification.previews.contains(entry.key()); });
    for (const QString &path : notification.previews)
        requestPreview(path);
    update();
}

void CaptureNotificationView::resizeEvent(QResizeEvent *) {
    const QPoint place(width() - m_undo->width() - textLeftWithoutPreviews,
                       (height() - m_undo->height()) / 2);
    m_undo->setGeometry(QStyle::visualRect(layoutDirection(), rect(), {place, m_undo->size()}));
}

void CaptureNotificationView::enterEvent(QEnterEvent *) {
    Q_EMIT hovered(true);
}

void CaptureNotificationView::leaveEvent(QEvent *) {
    Q_EMIT hovered(false);
}

void CaptureNotificationView::mousePressEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton)
        m_pressed = event->position();
}

// The captures are dragged out of the notification as they are out of the shelf.
void CaptureNotificationView::mouseMoveEvent(QMouseEvent *event) {
    if (!m_pressed || m_notification.previews.isEmpty() ||
        (event->position() - *m_pressed).manhattanLength() < QApplication::startDragDistance())
        return;
    m_pressed.reset();
    QList<QImage> pictures;
    for (const QString &path : m_notification.previews) {
        if (m_images.contains(path))
            pictures.append(m_images.value(path));
    }
    Q_EMIT dragBegan();
    dragFiles(*this, m_notification.previews, m_files, pictures);
    Q_EMIT dragEnded();
}

void CaptureNotificationView::mouseReleaseEvent(QMouseEvent *event) {
    const bool wasPressed = std::exchange(m_pressed, std::nullopt).has_value();
    if (wasPressed && rect().contains(event->position().toPoint()))
        Q_EMIT clicked();
}

void CaptureNotificationView::requestPreview(const QString &path) {
    if (m_images.contains(path) || m_requests.contains(path))
        return;
    m_requests[path] = m_thumbnails.request(path, previewSide, devicePixelRatioF(),
                                            [this, path](const Result<Thumbnails::Thumbnail> &thumbnail) {
                                                if (!thumbnail)
                                                    return;
                                                m_images.insert(path, thumbnail->image);
                                                update();
                                            });
}

void CaptureNotificationView::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    paintPreviews(painter);
    paintOverflow(painter);
    paintText(painter);
}

void CaptureNotificationView::paintPreviews(QPainter &painter) const {
    const QStringList &paths = m_notification.previews;
    for (qsizetype i = paths.size() - 1; i >= 0; --i) {
        const Pose &pose = paths.size() == 1 ? alone : stack.at(static_cast<std::size_t>(i));
        const QImage image = m_images.value(paths[i]);
        painter.save();
        painter.translate(isRightToLeft() ? width() - pose.middle.x() : pose.middle.x(), pose.middle.y());
        painter.rotate(pose.degrees);
        const QRectF place({-previewSize.width() / 2, -previewSize.height() / 2}, previewSize);
        if (image.isNull()) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(palette::groupActive);
            painter.drawRoundedRect(place, 4, 4);
        } else {
            ScreenshotPreviewImageView::draw(painter, ScreenshotPreviewImageView::fitted(image, place),
                                             image);
        }
        painter.restore();
    }
}

// How many more there are than can be seen.
void CaptureNotificationView::paintOverflow(QPainter &painter) const {
    if (m_notification.previews.isEmpty() || m_notification.overflow() <= 0)
        return;
    painter.setFont(typography::font(typography::captionSize, QFont::DemiBold));
    const QString text = QStringLiteral("+%1").arg(m_notification.overflow());
    QRectF pill(0, 0, painter.fontMetrics().horizontalAdvance(text) + 10, 16);
    pill.moveCenter({isRightToLeft() ? width() - 124.0 : 124.0, 64});
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette::accent);
    painter.drawRoundedRect(pill, 8, 8);
    painter.setPen(palette::onAccent);
    painter.drawText(pill, Qt::AlignCenter, text);
}

void CaptureNotificationView::paintText(QPainter &painter) const {
    const int left = m_notification.previews.isEmpty() ? textLeftWithoutPreviews : textLeft;
    const int undoRoom = m_undo->width() + textLeftWithoutPreviews;
    const int width = this->width() - (m_undo->isVisible() ? undoRoom : 20) - left;
    const auto drawLine = [&](const QRect &line, const QString &text) {
        painter.drawText(QStyle::visualRect(layoutDirection(), rect(), line),
                         Qt::AlignLeading | Qt::AlignVCenter,
                         painter.fontMetrics().elidedText(text, Qt::ElideRight, width));
    };
    const QString detail = m_notification.detail();
    const bool hasDetail = !detail.isEmpty();
    painter.setFont(typography::font(typography::headlineSize, QFont::DemiBold));
    painter.setPen(palette::text);
    const QRect title = hasDetail ? QRect(left, 24, width, 20) : QRect(left, 0, width, height());
    drawLine(title, m_notification.text);
    if (!hasDetail)
        return;
    painter.setFont(typography::font(typography::itemSize));
    painter.setPen(palette::secondaryText);
    drawLine(QRect(left, 44, width, 18), detail);
}

} // namespace tembra
