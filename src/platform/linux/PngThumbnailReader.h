#pragma once

#include "imaging/PageBuffer.h"

#include <QImage>
#include <QString>

#include <optional>

namespace tembra {

// Reduces PNG files of the common kind (PngFile.h), which captures are, several times faster than decoding
// and scaling them: inflated in one piece, and averaged row by row while a row is at hand. Keeps its memory
// for the next picture. Any one thread at a time.
class PngThumbnailReader {
public:
    // The picture fitted into a square of the given side, RGB32 or ARGB32. Nothing when it is less than twice
    // as large, large beyond sense, uncommon or damaged: whoever reads every kind is to say what it is.
    [[nodiscard]] std::optional<QImage> read(const QString &path, int side);
    // Gives the memory back.
    void release();

private:
    PageBuffer m_file;
    PageBuffer m_pixels;
};

} // namespace tembra
