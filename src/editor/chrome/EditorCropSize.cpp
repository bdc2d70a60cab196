#include "editor/chrome/EditorCropSize.h"

#include "controls/ControlPainting.h"
#include "controls/Theme.h"
#include "controls/Typography.h"
#include "editor/chrome/CropAspect.h"

#include <QPainter>

namespace tembra {

namespace {

constexpr int gap = 8;

} // namespace

EditorCropSize::EditorCropSize(QWidget *parent) : QWidget(parent) {
    setFont(typography::font(typography::itemSize));
}

void EditorCropSize::setCrop(QSize crop) {
    m_size = tr("%1 × %2").arg(crop.width()).arg(crop.height());
    m_aspect = cropAspect(crop);
    setAccessibleName(tr("Crop: %1, %2").arg(m_size, m_aspect));
    update();
}

QSize EditorCropSize::sizeHint() const {
    const QFontMetrics metrics(font());
    const int width = std::max(metrics.horizontalAdvance(QStringLiteral("0000 × 0000")),
                               metrics.horizontalAdvance(m_size)) +
                      gap + metrics.horizontalAdvance(QStringLiteral("≈ 16:10"));
    return QSize(width, 28).grownBy({ringMargin, ringMargin, ringMargin, ringMargin});
}

void EditorCropSize::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    const Theme &theme = Theme::of(*this);
    const QFontMetrics metrics(font());
    const int sizeWidth = metrics.horizontalAdvance(m_size);
    const int width = sizeWidth + gap + metrics.horizontalAdvance(m_aspect);
    QRectF room = controlBody(*this);
    room.setLeft(room.left() + std::max(0.0, (room.width() - width) / 2));
    painter.setPen(theme.text);
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter, m_size);
    painter.setPen(theme.secondaryText);
    painter.drawText(room.adjusted(sizeWidth + gap, 0, gap, 0), Qt::AlignLeft | Qt::AlignVCenter, m_aspect);
}

} // namespace tembra
