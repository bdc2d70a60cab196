#pragma once

#include "editor/model/EditorBlur.h"
#include "editor/model/ScreenshotAnnotation.h"

#include <QImage>
#include <QPoint>
#include <QRect>

#include <optional>
#include <span>
#include <vector>

class QPainter;

namespace tembra {

// What the blur annotations hide, blurred: computed from the original's pixels alone, so that areas which
// overlap do not blur twice. Areas cover every pixel that they touch. A value; any thread.
class BlurredAreas {
public:
    // Only within `visible` (pixels of the image). Nothing when there is not enough memory.
    [[nodiscard]] static std::optional<BlurredAreas>
    of(const QImage &image, std::span<const ScreenshotAnnotation> annotations, QRect visible);

    [[nodiscard]] bool isEmpty() const { return m_patches.empty(); }
    // Where, from the given origin.
    [[nodiscard]] std::vector<QRect> areas(QPoint origin) const;
    // In image space; stronger blurs over weaker ones.
    void draw(QPainter &painter) const;

private:
    struct Patch {
        QImage image;
        // Where the patch lies, and which part of it is shown.
        QPoint origin;
        QRect area;
    };

    [[nodiscard]] bool add(const QImage &image, const std::vector<QRect> &areas,
                           EditorBlur::Strength strength);

    std::vector<Patch> m_patches;
};

} // namespace tembra
