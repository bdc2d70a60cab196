#include "editor/model/ContrastColor.h"

#include <algorithm>
#include <cmath>

namespace tembra {

namespace {

constexpr EditorColor white{1, 1, 1, 1};
constexpr EditorColor ink{0.07, 0.07, 0.09, 1};
constexpr double contrastOfLargeType = 3;
constexpr double leastContrastOfRim = 1.5;

double linear(double component) {
    const double value = std::clamp(component, 0.0, 1.0);
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double contrastOfWhite(const EditorColor &color) {
    return 1.05 / (relativeLuminance(color) + 0.05);
}

} // namespace

double relativeLuminance(const EditorColor &color) {
    return 0.2126 * linear(color.r) + 0.7152 * linear(color.g) + 0.0722 * linear(color.b);
}

EditorColor contrasting(const EditorColor &color) {
    return contrastOfWhite(color) >= contrastOfLargeType ? white : ink;
}

EditorColor rimColor(const EditorColor &color) {
    return contrastOfWhite(color) >= leastContrastOfRim ? white : ink;
}

} // namespace tembra
