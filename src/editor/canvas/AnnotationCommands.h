#pragma once

#include "editor/model/EditorStyleChange.h"
#include "editor/model/ScreenshotEditDocument.h"
#include "platform/Pasteboard.h"

#include <QPointF>
#include <QRectF>

#include <optional>

namespace tembra {

// What keys, menus and controls do to the annotations of a document: each a step of its undo. Image space;
// main thread; made for the length of a call.
class AnnotationCommands {
public:
    enum class Order { forward, backward, front, back };

    // `limits` is the part of the image that is shown.
    AnnotationCommands(ScreenshotEditDocument &document, const QRectF &limits)
        : m_document(document), m_limits(limits) {}

    // On top of the others, or in place of those with the same ids.
    void put(const std::vector<ScreenshotAnnotation> &annotations, const QString &name);
    void nudge(QPointF delta);
    void grow(QPointF delta);
    void order(Order order);
    void restyle(const EditorStyleChange &change);
    // Beside the originals, and selected. Nothing when there are no numbers left.
    void duplicate();
    [[nodiscard]] Result<void> copy(Pasteboard &pasteboard) const;
    [[nodiscard]] Result<void> cut(Pasteboard &pasteboard);
    // Whether there are numbers left for what would be pasted.
    [[nodiscard]] bool canPaste(Pasteboard &pasteboard) const;
    // Whether there was something to paste. What came from elsewhere in the image is put in the middle.
    bool paste(Pasteboard &pasteboard, QPointF middle);
    void selectAll();
    // The next one, or the first, in the order of drawing; false past the last one.
    bool selectNext(bool isBackward);

private:
    using Annotations = std::vector<ScreenshotAnnotation>;
    template <class Change>
    void changeSelected(const Change &change, const QString &name, const QString &series = {});
    [[nodiscard]] QString series(const QString &kind) const;
    bool insertCopies(const Annotations &originals, QPointF delta, const QString &name);

    ScreenshotEditDocument &m_document;
    const QRectF m_limits;
};

} // namespace tembra
