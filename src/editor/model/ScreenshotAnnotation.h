#pragma once

#include "editor/model/EditorBlur.h"
#include "editor/model/EditorColor.h"
#include "editor/model/EditorNumber.h"
#include "editor/model/EditorPencil.h"
#include "editor/model/EditorPoint.h"
#include "editor/model/EditorText.h"

#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QUuid>

#include <optional>
#include <vector>

namespace tembra {

// One thing drawn on a screenshot. A value; all lengths and positions in image space (EditorPoint.h). Any
// thread.
struct ScreenshotAnnotation {
    enum class Kind { arrow, pencil, line, rectangle, ellipse, text, number, blur };

    // The same through moves, changes of style and undo.
    QUuid id;
    Kind kind = Kind::arrow;
    // The two ends of an arrow or line, two opposite corners of a rectangle, an ellipse or a blur, the
    // samples of a pencil stroke, the top left corner of a text's box, the centre of a number's badge.
    std::vector<EditorPoint> points;
    EditorColor color;
    // Of the stroke.
    double width = 0;
    // What a bent arrow passes through at its middle.
    std::optional<EditorPoint> bendPoint;
    // Of a shape; outlined where absent.
    std::optional<bool> filled;
    std::optional<EditorText> text;
    std::optional<EditorNumber> number;
    std::optional<EditorBlur> blur;
    std::optional<EditorPencil> pencil;

    [[nodiscard]] bool isShape() const;
    // It is edited by the eight handles of its rectangle rather than by points of its own.
    [[nodiscard]] bool hasRectHandles() const;
    // It carries what its kind needs, within bounds, and nothing that belongs to another kind.
    [[nodiscard]] bool hasValidPayload() const;
    // Every coordinate and the width are finite.
    [[nodiscard]] bool isFinite() const;
    // It is finite, has the points that its kind needs, and lies where pictures are: what is not so is never
    // drawn and never hit.
    [[nodiscard]] bool isDrawable() const;

    // Covers everything that is drawn; empty where nothing is.
    [[nodiscard]] QRectF bounds() const;
    // Whether a click there, with so many pixels of tolerance, means this. An outlined shape is hit on its
    // line, a filled one and a blur anywhere inside.
    [[nodiscard]] bool contains(QPointF point, double tolerance) const;
    // What is dragged to change it: an arrow's two ends and the handle in its middle, a line's two ends;
    // empty where the rectangle's handles or a move are all there is.
    [[nodiscard]] std::vector<QPointF> editingPoints() const;
    [[nodiscard]] std::vector<QPointF> arrowEditingPoints() const;
    // Where an arrow's curve has its middle.
    [[nodiscard]] QPointF arrowMidpoint() const;
    // Between the two corners, whichever they are.
    [[nodiscard]] QRectF shapeRect() const;
    // The outline of what is drawn, filled by nonzero winding; of a text its box, of a blur its rectangle.
    [[nodiscard]] QPainterPath path() const;
    // A shape or blur, as it was when the drag began, with one of its handles (RectHandles.h) moved to a
    // point, kept within `limits`. Dragged past the opposite side it turns over. With `preservingAspect` it
    // keeps the proportions it has.
    [[nodiscard]] ScreenshotAnnotation resizedShape(int handle, QPointF point, bool preservingAspect,
                                                    QRectF limits) const;
    // A number with another value; its badge, which may widen with its digits, is kept within `limits`.
    [[nodiscard]] ScreenshotAnnotation replacingNumber(std::int64_t value, QRectF limits) const;

    bool operator==(const ScreenshotAnnotation &) const = default;
};

} // namespace tembra
