#pragma once

#include "editor/canvas/CanvasScene.h"
#include "editor/model/EditorBlur.h"

#include <QImage>
#include <QPainter>

#include <list>
#include <map>
#include <vector>

namespace tembra {

// What blurs show, as far as it is seen: kept for those that are settled, whatever the zoom within a level of
// the image's pyramid, and computed once for the whole view while one is being drawn. View space; main
// thread; owned by CanvasLayers.
class BlurPatches {
public:
    // Another image, or another view of it.
    void setView(const CanvasScene &scene);
    // In their order, the stronger ones above. `areKept` for those that stay as they are.
    void draw(QPainter &painter, const CanvasScene &scene, const std::vector<ScreenshotAnnotation> &blurs,
              bool areKept);

private:
    // Blurred pixels of a level, and where they lie in it.
    struct Patch {
        const ImagePyramid::Level *level = nullptr;
        EditorBlur::Strength strength = EditorBlur::Strength::medium;
        QRect pixels;
        QImage image;
    };
    [[nodiscard]] const Patch &patchFor(const CanvasScene &scene, const QRectF &area,
                                        EditorBlur::Strength strength, bool isKept);
    [[nodiscard]] const Patch &viewPatch(const CanvasScene &scene, EditorBlur::Strength strength);

    std::shared_ptr<const ImagePyramid> m_image;
    CanvasViewport m_viewport;
    std::map<EditorBlur::Strength, Patch> m_view;
    // The latest first.
    std::list<Patch> m_kept;
};

} // namespace tembra
