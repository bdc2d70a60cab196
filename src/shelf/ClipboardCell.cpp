#include "shelf/ClipboardCell.h"

#include "platform/FileFacts.h"

#include <QFileInfo>
#include <QIcon>
#include <QMimeDatabase>
#include <QPainter>

namespace tembra {

namespace {

constexpr int iconSide = 56;

// By the name alone: nothing is read while tiles are laid out.
QIcon kindIcon(const QString &path, bool isFolder) {
    if (isFolder)
        return QIcon::fromTheme(QStringLiteral("folder"));
    const QMimeType type = QMimeDatabase().mimeTypeForFile(path, QMimeDatabase::MatchExtension);
    return QIcon::fromTheme(type.iconName(), QIcon::fromTheme(type.genericIconName()));
}

} // namespace

void ClipboardCell::setTile(const FileTile &tile) {
    constexpr qreal unavailableOpacity = 0.45;
    if (path() != tile.path)
        m_kindIcon = kindIcon(tile.path, tile.isFolder).pixmap({iconSide, iconSide}, devicePixelRatioF());
    FileItemCell::setTile(tile);
    setOpacity(tile.isAvailable ? 1 : unavailableOpacity);
    const QFileInfo file(tile.path);
    setToolTip(tile.isAvailable ? file.fileName() + u'\n' + file.path() : tr("Original unavailable"));
}

void ClipboardCell::paintKindIcon(QPainter &painter) {
    if (m_kindIcon.isNull())
        return FileItemCell::paintKindIcon(painter);
    QRectF place({}, m_kindIcon.deviceIndependentSize());
    place.moveCenter(QRectF(iconFrame).center());
    painter.drawPixmap(place.topLeft(), m_kindIcon);
}

} // namespace tembra
