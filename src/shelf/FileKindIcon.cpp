#include "shelf/FileKindIcon.h"

#include "controls/Icons.h"
#include "controls/Palette.h"

#include <QFileInfo>
#include <QPainter>
#include <QSet>

namespace tembra {

namespace {

// Drawn again and again while a folder is scrolled, so the name decides wherever it can.
Icon iconOf(const QString &path) {
    static const QSet<QString> pictures{
        QStringLiteral("png"),  QStringLiteral("jpg"),  QStringLiteral("jpeg"), QStringLiteral("heic"),
        QStringLiteral("tiff"), QStringLiteral("tif"),  QStringLiteral("webp"), QStringLiteral("gif"),
        QStringLiteral("bmp"),  QStringLiteral("avif"), QStringLiteral("jxl"),  QStringLiteral("svg")};
    static const QSet<QString> videos{QStringLiteral("mov"),  QStringLiteral("mp4"), QStringLiteral("m4v"),
                                      QStringLiteral("webm"), QStringLiteral("mkv"), QStringLiteral("avi")};
    const QFileInfo file(path);
    const QString suffix = file.suffix().toLower();
    if (pictures.contains(suffix))
        return Icon::photo;
    if (videos.contains(suffix))
        return Icon::film;
    return file.isDir() ? Icon::folder : Icon::document;
}

} // namespace

void drawFileKindIcon(QPainter &painter, const QString &path, const QRectF &frame) {
    constexpr qreal plateHeight = 44;
    constexpr qreal radius = 5;
    constexpr qreal side = 20;
    QRectF plate(0, 0, frame.width(), std::min(plateHeight, frame.height()));
    plate.moveCenter(frame.center());
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette::group);
    painter.drawRoundedRect(plate, radius, radius);
    drawIcon(painter, iconOf(path), plate, side, palette::icon);
}

} // namespace tembra
