#pragma once

#include "editor/canvas/CanvasDraft.h"

#include <QPointF>
#include <QString>

namespace tembra {

// What the pointer does from a press to the release. Image space; main thread; owned by the canvas. It knows
// nothing of the document: what it leads to is a draft, which the canvas shows and, in the end, applies.
class CanvasGesture {
public:
    virtual ~CanvasGesture() = default;
    // The pointer is there now.
    [[nodiscard]] virtual CanvasDraft drag(QPointF point, Qt::KeyboardModifiers modifiers) = 0;
    // What undoing it is called.
    [[nodiscard]] virtual QString actionName() const = 0;
    // Whether the annotations of the draft are selected when it ends.
    [[nodiscard]] virtual bool selects() const { return true; }
};

} // namespace tembra
