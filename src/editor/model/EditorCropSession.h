#pragma once

#include <QPointF>
#include <QRectF>

#include <array>
#include <optional>

namespace tembra {

// A crop while it is being drawn. Image space, whole pixels. Main thread; lives as long as the crop tool is
// in use.
class EditorCropSession {
public:
    // The one test of a crop: whole pixels, at least one by one, within the image.
    [[nodiscard]] static bool valid(const QRectF &crop, const QRectF &image);

    // The handle nearest to a point among those within 12 points of it in both directions. The positions are
    // in view coordinates, in the order of the handles.
    [[nodiscard]] static std::optional<int> handleAt(QPointF point, const std::array<QPointF, 8> &positions);
    // Where the handles of a rectangle are: clockwise from its top left corner.
    [[nodiscard]] static std::array<QPointF, 8> handlePositions(const QRectF &rect);

    // `crop` is the document's; nothing stands for the whole image.
    EditorCropSession(QSizeF imageSize, const std::optional<QRectF> &crop);

    [[nodiscard]] QRectF original() const { return m_original; }
    [[nodiscard]] QRectF initial() const { return m_initial; }
    [[nodiscard]] QRectF rect() const { return m_rect; }
    [[nodiscard]] bool isDragging() const { return m_dragRect.has_value(); }

    // Without a handle the whole rectangle is moved.
    void beginDrag(QPointF start, std::optional<int> handle);
    // Does nothing outside a drag.
    void drag(QPointF to);
    void endDrag() { m_dragRect.reset(); }

private:
    QRectF m_original;
    QRectF m_initial;
    QRectF m_rect;
    std::optional<QRectF> m_dragRect;
    QPointF m_start;
    std::optional<int> m_handle;
};

} // namespace tembra
