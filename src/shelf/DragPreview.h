#pragma once

#include <QImage>
#include <QList>
#include <QPixmap>

namespace tembra {

// What hangs at the pointer while files are dragged out: the first pictures on a small pile, and how many
// files they are when they are more than one. `scale` is the device pixels of a point.
[[nodiscard]] QPixmap dragPreview(const QList<QImage> &pictures, int count, qreal scale);

} // namespace tembra
