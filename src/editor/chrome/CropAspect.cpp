#include "editor/chrome/CropAspect.h"

#include <QLocale>

#include <array>
#include <cmath>
#include <numeric>
#include <utility>

namespace tembra {

namespace {

using Ratio = std::pair<int, int>;

// How far a name may be from what is, in parts of it, to be told as about so.
constexpr double nearly = 0.015;

QString text(Ratio ratio) {
    return QStringLiteral("%1:%2").arg(ratio.first).arg(ratio.second);
}

// How many pixels the side that has to change least is away from the ratio.
double pixelsOff(QSize crop, Ratio ratio) {
    const double wantedWidth = crop.height() * static_cast<double>(ratio.first) / ratio.second;
    const double wantedHeight = crop.width() * static_cast<double>(ratio.second) / ratio.first;
    return std::min(std::abs(crop.width() - wantedWidth), std::abs(crop.height() - wantedHeight));
}

QString landscapeAspect(QSize crop, bool isTurned) {
    constexpr std::array common{Ratio{1, 1},   Ratio{5, 4},  Ratio{4, 3}, Ratio{3, 2},
                                Ratio{16, 10}, Ratio{16, 9}, Ratio{2, 1}, Ratio{21, 9}};
    constexpr int largestTerm = 9;
    const auto named = [isTurned](Ratio ratio) {
        return text(isTurned ? Ratio{ratio.second, ratio.first} : ratio);
    };
    Ratio nearest = common.front();
    for (const Ratio &ratio : common) {
        if (crop.width() * ratio.second == crop.height() * ratio.first)
            return named(ratio);
        if (pixelsOff(crop, ratio) < pixelsOff(crop, nearest))
            nearest = ratio;
    }
    const int divisor = std::gcd(crop.width(), crop.height());
    const Ratio reduced{crop.width() / divisor, crop.height() / divisor};
    if (reduced.first <= largestTerm)
        return named(reduced);
    const double off = pixelsOff(crop, nearest);
    if (off <= 1)
        return named(nearest);
    if (off <= nearly * crop.height())
        return QStringLiteral("≈ ") + named(nearest);
    const QString decimal = QLocale().toString(static_cast<double>(crop.width()) / crop.height(), 'f', 2);
    return isTurned ? QStringLiteral("1:%1").arg(decimal) : QStringLiteral("%1:1").arg(decimal);
}

} // namespace

QString cropAspect(QSize crop) {
    if (crop.isEmpty())
        return {};
    const bool isTurned = crop.height() > crop.width();
    return landscapeAspect(isTurned ? crop.transposed() : crop, isTurned);
}

} // namespace tembra
