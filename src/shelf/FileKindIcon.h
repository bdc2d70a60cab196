#pragma once

class QPainter;
class QRectF;
class QString;

namespace tembra {

// Draws what stands for a file as long as there is no picture of it: a quiet plate with a sign of its kind.
void drawFileKindIcon(QPainter &painter, const QString &path, const QRectF &frame);

} // namespace tembra
