#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QTransform>

namespace tembra {

// Which part of an image the canvas shows, and how large. A value.
//
// Image space is that of EditorPoint.h. View space is points from the top left of the canvas. The scale is
// the number of the display's pixels for a pixel of the image, so that at 1 one is the other.
class CanvasViewport {
public:
    static constexpr double largestScale = 32;
    // Around an image that is fit into the view; what stands below covers the dock.
    static constexpr double sideMargin = 36;
    static constexpr double bottomMargin = 116;

    // `displayScale` is the display's pixels a point.
    void setView(QSizeF size, double displayScale);
    // What is shown of the image: all of it, or its crop. Image space. Keeps a zoom that was chosen.
    void setContent(const QRectF &content);

    [[nodiscard]] QSizeF viewSize() const { return m_view; }
    [[nodiscard]] double displayScale() const { return m_displayScale; }
    [[nodiscard]] QRectF content() const { return m_content; }
    [[nodiscard]] double scale() const { return m_scale; }
    // Points of the view for a pixel of the image.
    [[nodiscard]] double zoom() const { return m_scale / m_displayScale; }
    [[nodiscard]] double smallestScale() const;
    // The whole content is shown, and follows the view's size.
    [[nodiscard]] bool isFit() const { return m_isFit; }

    void fit();
    // What is at `anchor`, in view space, stays there.
    void setScale(double scale, QPointF anchor);
    // In view space. A content that there is room for within the margins stays in the middle.
    void pan(QPointF delta);
    // Moves as little as it must so that a rectangle in image space is seen; a content that is seen whole
    // stays.
    void reveal(const QRectF &rect);

    [[nodiscard]] QPointF toImage(QPointF view) const;
    [[nodiscard]] QPointF toView(QPointF image) const;
    [[nodiscard]] QRectF toView(const QRectF &image) const;
    [[nodiscard]] QRectF toImage(const QRectF &view) const;
    [[nodiscard]] QTransform imageToView() const;
    [[nodiscard]] QPointF center() const { return {m_view.width() / 2, m_view.height() / 2}; }

    bool operator==(const CanvasViewport &) const = default;

private:
    [[nodiscard]] double fitScale() const;
    void place(QPointF origin);
    [[nodiscard]] QPointF onPixels(QPointF point) const;

    QSizeF m_view{1, 1};
    double m_displayScale = 1;
    QRectF m_content{0, 0, 1, 1};
    double m_scale = 1;
    // Of the content's top left corner, in view space, on the display's pixels; and where it would be between
    // them, so that what is under an anchor does not wander off in many steps.
    QPointF m_origin;
    QPointF m_exactOrigin;
    bool m_isFit = true;
};

} // namespace tembra
