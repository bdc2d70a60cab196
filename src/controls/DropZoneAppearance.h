#pragma once

#include <QColor>
#include <QString>

class QPainter;
class QRectF;

namespace tembra {

// How a place looks where files may be dropped.
struct DropZoneAppearance {
    static constexpr QColor borderColor{80, 79, 80};

    // `overlay` lies over content and lets it show through; `highlighted` while files are held over it.
    static void draw(QPainter &painter, const QRectF &rectangle, bool highlighted, bool overlay,
                     const QString &message);
};

} // namespace tembra
