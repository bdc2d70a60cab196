#pragma once

#include "editor/canvas/BlurPatches.h"
#include "editor/canvas/CanvasScene.h"

#include <QImage>
#include <QPainter>

#include <vector>

namespace tembra {

// Paints the image and what is drawn on it. What stays the same from one frame to the next is kept in the
// pixels of the display, in three layers: the image with its blurs, what is drawn below what changes, and
// what is drawn above it. So a frame costs what changes in it. View space; main thread; owned by the canvas.
class CanvasLayers {
public:
    // Brings the layers up to date with the scene and paints the part of it that is exposed.
    void paint(QPainter &painter, const QRectF &exposed, const CanvasScene &scene);
    // After a zoom what is drawn on the image is shown as it was before, scaled, until this is called.
    [[nodiscard]] bool isApproximate() const { return m_isApproximate; }
    void refine();
    // What was drafted is so now, or never was.
    void endDraft() { m_moving = {}; }
    // The colours have changed.
    void forget();

private:
    using Annotations = std::vector<ScreenshotAnnotation>;

    // Which of the scene's annotations each layer has. Blurs lie below everything else.
    struct Split {
        Annotations settledBlurs;
        Annotations draftBlurs;
        Annotations below;
        Annotations live;
        Annotations above;
    };
    [[nodiscard]] static Split split(const CanvasScene &scene);

    void updateFrame(const CanvasScene &scene, const Split &split);
    void drawScaledInk(QPainter &painter, const CanvasScene &scene) const;
    void shiftInk(const CanvasScene &scene, QPointF shift);
    void drawDraftBlurs(QPainter &painter, const CanvasScene &scene, const Split &split);
    void drawLive(QPainter &painter, const CanvasScene &scene, const Split &split);
    void updatePicture(const CanvasScene &scene, const Split &split);
    // A layer that has the annotations, drawn on top of what it has already where that is possible.
    struct Ink {
        QImage image;
        Annotations drawn;
        // What each of them covers. Image space.
        std::vector<QRectF> bounds;
    };
    void updateInk(Ink &ink, const CanvasScene &scene, const Annotations &annotations) const;
    [[nodiscard]] static QImage emptyLayer(const CanvasScene &scene, QImage::Format format);

    // What all layers were made for.
    CanvasViewport m_viewport;
    std::shared_ptr<const ImagePyramid> m_image;

    QImage m_picture;
    Annotations m_pictureBlurs;
    Ink m_below;
    Ink m_above;
    // What is being moved, as it was at first, and by how much it was moved then.
    Ink m_moving;
    QPointF m_movedBefore;
    // The layer below is that of another zoom, and this is where it belongs.
    bool m_isApproximate = false;
    CanvasViewport m_inkViewport;
    BlurPatches m_blurs;
};

} // namespace tembra
