#include "shelf/FileItemCell.h"

#include "controls/FocusRing.h"
#include "controls/Motion.h"
#include "controls/Palette.h"
#include "controls/Typography.h"
#include "platform/FileFacts.h"
#include "shelf/FileKindIcon.h"
#include "shelf/FileNameLayout.h"
#include "shelf/FileThumbnailCache.h"
#include "shelf/ScreenshotPreviewImageView.h"
#include "shelf/ShelfLayout.h"

#include <QEvent>
#include <QPainter>

#include <utility>

namespace tembra {

namespace {

constexpr int motionMilliseconds = 200;

constexpr int nameTop = 76;
constexpr int nameLineHeight = 15;
constexpr qreal nameHighlightMargin = 5;
constexpr qreal nameHighlightRadius = 4;
constexpr qreal iconSelectionRadius = 3;
// From the picture's frame to the middle of the selection's border.
constexpr qreal selectionBorderDistance = 4;
constexpr qreal selectionBorderWidth = 2;
constexpr qreal selectionBorderRadius = 7;

const QFont &nameFont() {
    static const QFont font = typography::font(typography::itemSize);
    return font;
}

QString fileName(const QString &path) {
    return path.mid(path.lastIndexOf(u'/') + 1);
}

} // namespace

FileItemCell::FileItemCell(const FilePresentation &presentation, QWidget *parent)
    : QWidget(parent), m_presentation(presentation), m_motion(this, "geometry") {
    m_motion.setDuration(motionMilliseconds);
    m_motion.setEasingCurve(QEasingCurve::OutCubic);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setItemRect({0, 0, ShelfLayout::Grid::itemWidth, ShelfLayout::Grid::itemHeight});
}

void FileItemCell::setItemRect(const QRect &rectangle, bool moves) {
    const QRect place = rectangle.adjusted(-bleed, -bleed, bleed, bleed);
    const bool isOnItsWay = m_motion.state() == QAbstractAnimation::Running;
    if (place == (isOnItsWay ? m_motion.endValue().toRect() : geometry()))
        return;
    m_motion.stop();
    if (!moves || !isVisible() || motion::isReduced(*this))
        return setGeometry(place);
    m_motion.setStartValue(geometry());
    m_motion.setEndValue(place);
    m_motion.start();
}

void FileItemCell::configure(QString path, QString revision, QImage fallback) {
    prepareForReuse();
    m_path = std::move(path);
    m_revision = std::move(revision);
    m_fallback = std::move(fallback);
    const QString name = fileName(m_path);
    setToolTip(name);
    m_nameLines = FileNameLayout::lines(name, QFontMetricsF(nameFont()));
    requestThumbnail();
    update();
}

void FileItemCell::setTile(const FileTile &tile) {
    const bool isSameFile = m_path == tile.path;
    if (!isSameFile || m_revision != tile.revision)
        configure(tile.path, tile.revision, isSameFile ? image() : QImage());
}

void FileItemCell::prepareForReuse() {
    m_generation.advance();
    m_request.reset();
    m_thumbnail.reset();
    m_fallback = {};
    m_path.clear();
    m_revision.clear();
    m_nameLines.clear();
}

void FileItemCell::requestThumbnail() {
    m_requestedScale = devicePixelRatioF();
    const QString key = FileThumbnailCache::key(m_presentation.files, m_path, m_revision, m_requestedScale);
    if (auto cached = m_presentation.cache.find(key)) {
        m_thumbnail = std::move(cached);
        return;
    }
    m_request = m_presentation.thumbnails.request(
        m_path, iconFrame.width(), m_requestedScale,
        [this, key, ticket = m_generation.ticket()](const Result<Thumbnails::Thumbnail> &thumbnail) {
            if (ticket.isCurrent())
                receive(key, thumbnail);
        });
}

void FileItemCell::receive(const QString &key, const Result<Thumbnails::Thumbnail> &thumbnail) {
    if (!thumbnail || thumbnail->image.isNull() || !m_presentation.files.targetFacts(m_path))
        return;
    const QRectF content(QPointF(), thumbnail->image.deviceIndependentSize());
    m_thumbnail = std::make_shared<const FileThumbnail>(
        FileThumbnail{thumbnail->image, content, thumbnail->isThumbnail});
    m_presentation.cache.insert(key, m_thumbnail);
    update();
}

QImage FileItemCell::image() const {
    return m_thumbnail ? m_thumbnail->image : m_fallback;
}

void FileItemCell::assign(bool &state, bool value) {
    if (state == value)
        return;
    state = value;
    update();
}

void FileItemCell::setShowsFileName(bool shows) {
    assign(m_showsFileName, shows);
}

void FileItemCell::setSelected(bool selected) {
    assign(m_selected, selected);
}

void FileItemCell::setHighlighted(bool highlighted) {
    assign(m_highlighted, highlighted);
}

void FileItemCell::setCurrent(bool current) {
    assign(m_current, current);
}

void FileItemCell::setOpacity(qreal opacity) {
    if (m_opacity == opacity)
        return;
    m_opacity = opacity;
    update();
}

bool FileItemCell::event(QEvent *event) {
    const bool mayHaveMoved = event->type() == QEvent::ScreenChangeInternal || event->type() == QEvent::Show;
    if (mayHaveMoved && !m_path.isEmpty() && m_requestedScale != devicePixelRatioF())
        configure(m_path, m_revision, image());
    return QWidget::event(event);
}

void FileItemCell::paintEvent(QPaintEvent *) {
    if (m_path.isEmpty())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(bleed, bleed);
    painter.setOpacity(m_opacity);
    paintSelection(painter);
    paintPicture(painter);
    if (m_showsFileName)
        paintName(painter);
    paintBadges(painter);
}

void FileItemCell::paintBadges(QPainter &) {}

void FileItemCell::paintSelection(QPainter &painter) const {
    painter.setPen(Qt::NoPen);
    if (m_selected || m_highlighted) {
        painter.setBrush(m_selected ? palette::selection : palette::highlight);
        painter.drawRoundedRect(iconFrame, iconSelectionRadius, iconSelectionRadius);
    }
    if (m_selected) {
        const qreal distance = selectionBorderDistance;
        painter.setPen(QPen(palette::accent, selectionBorderWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(iconFrame).adjusted(-distance, -distance, distance, distance),
                                selectionBorderRadius, selectionBorderRadius);
    }
    if (m_current)
        drawFocusRing(painter, iconFrame, iconSelectionRadius);
}

void FileItemCell::paintKindIcon(QPainter &painter) {
    drawFileKindIcon(painter, m_path, iconFrame);
}

void FileItemCell::paintPicture(QPainter &painter) {
    const QImage picture = image();
    if (picture.isNull())
        paintKindIcon(painter);
    else
        ScreenshotPreviewImageView::draw(painter, ScreenshotPreviewImageView::fitted(picture, iconFrame),
                                         picture);
}

void FileItemCell::paintName(QPainter &painter) const {
    painter.setFont(nameFont());
    const QFontMetricsF metrics(nameFont());
    QRectF line(0, nameTop, ShelfLayout::Grid::itemWidth, nameLineHeight);
    for (const QString &text : m_nameLines) {
        if (m_selected) {
            const qreal width = metrics.horizontalAdvance(text) + 2 * nameHighlightMargin;
            painter.setPen(Qt::NoPen);
            painter.setBrush(palette::accent);
            painter.drawRoundedRect(
                QRectF(line.center().x() - width / 2, line.top() - 1, width, line.height() + 2),
                nameHighlightRadius, nameHighlightRadius);
        }
        line.translate(0, nameLineHeight);
    }
    line.moveTop(nameTop);
    // A name reads as it is written, whatever the language of the program.
    painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    painter.setPen(m_selected ? palette::onAccent : palette::itemText);
    for (const QString &text : m_nameLines) {
        painter.drawText(line, Qt::AlignCenter, text);
        line.translate(0, nameLineHeight);
    }
}

} // namespace tembra
