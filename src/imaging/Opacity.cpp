#include "imaging/Opacity.h"

namespace tembra {

bool isOpaque(const QImage &image) {
    if (!image.hasAlphaChannel())
        return true;
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        QRgb alphas = 0xffff'ffff;
        for (int x = 0; x < image.width(); ++x)
            alphas &= line[x];
        if (qAlpha(alphas) != 255)
            return false;
    }
    return true;
}

} // namespace tembra
