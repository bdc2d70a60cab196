#pragma once

#include "editor/canvas/CanvasScene.h"
#include "editor/model/EditorBlur.h"

#include <QImage>
#include <QPainter>

#include <map>
#include <vector>

namespace tembra {

// Paints the image and what is drawn on it. What stays the same from one frame to the next is kept in the
// pixels of the display, in two layers: what lies below what changes, and what lies above it. So a frame
// costs what changes in it. View space; main thread; owned by the canvas.
class CanvasLayers {
public:
    // Brings the layers up to date with the scene and paints the part of it that is exposed.
    void paint(QPainter &painter, const QRectF &exposed, const CanvasScene &scene);
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

    void updateFrame(const CanvasScene &scene);
    void updateBelow(const CanvasScene &scene, const Split &split);
    void updateAbove(const CanvasScene &scene, const Split &split);
    void drawBlurs(QPainter &painter, const CanvasScene &scene, const Annotations &blurs);
    [[nodiscard]] const QImage &blurred(const CanvasScene &scene, EditorBlur::Strength strength);
    [[nodiscard]] QImage emptyLayer(const CanvasScene &scene, QImage::Format format) const;

    // What all layers were made for.
    CanvasViewport m_viewport;
    std::shared_ptr<const ImagePyramid> m_image;

    QImage m_below;
    Annotations m_belowBlurs;
    Annotations m_belowDrawn;
    QImage m_above;
    Annotations m_aboveDrawn;
    // What is seen of the image, blurred, in the pixels of the level that is shown.
    std::map<EditorBlur::Strength, QImage> m_blurred;
};

} // namespace tembra
