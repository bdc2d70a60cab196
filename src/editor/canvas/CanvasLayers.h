#pragma once

#include "editor/canvas/CanvasScene.h"
#include "editor/canvas/ImagePart.h"
#include "editor/model/EditorBlur.h"

#include <QImage>
#include <QPainter>

#include <map>
#include <vector>

namespace tembra {

// Paints the image and what is drawn on it. What stays the same from one frame to the next is kept in the
// pixels of the display, in three layers: the image with its blurs, what is drawn below what changes, and
// what is drawn above it. So a frame costs what changes in it. View space; main thread; owned by the canvas.
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
    void updatePicture(const CanvasScene &scene, const Split &split);
    // A layer that has the annotations, drawn on top of what it has already where that is possible.
    struct Ink {
        QImage image;
        Annotations drawn;
    };
    void updateInk(Ink &ink, const CanvasScene &scene, const Annotations &annotations) const;
    void drawBlurs(QPainter &painter, const CanvasScene &scene, const Annotations &blurs);
    void drawBlur(QPainter &painter, const CanvasScene &scene, const ImagePart &part, const QRectF &area,
                  EditorBlur::Strength strength);
    [[nodiscard]] const QImage &blurred(const CanvasScene &scene, EditorBlur::Strength strength);
    [[nodiscard]] static QImage emptyLayer(const CanvasScene &scene, QImage::Format format);

    // What all layers were made for.
    CanvasViewport m_viewport;
    std::shared_ptr<const ImagePyramid> m_image;

    QImage m_picture;
    Annotations m_pictureBlurs;
    Ink m_below;
    Ink m_above;
    // What is seen of the image, blurred, in the pixels of the level that is shown.
    std::map<EditorBlur::Strength, QImage> m_blurred;
};

} // namespace tembra
