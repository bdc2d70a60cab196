#include "editor/model/EditorColor.h"

#include <QRgba64>

#include <algorithm>
#include <array>

namespace tembra {

namespace {

constexpr EditorColor systemRed{1.0, 0x3b / 255.0, 0x30 / 255.0, 1.0};

} // namespace

EditorColor EditorColor::from(const QColor &color) {
    if (!color.isValid())
        return systemRed;
    const QRgba64 rgb = color.toRgb().rgba64();
    const auto component = [](quint16 value) { return value / 65'535.0; };
    return {component(rgb.red()), component(rgb.green()), component(rgb.blue()), component(rgb.alpha())};
}

QColor EditorColor::toColor() const {
    const auto component = [](double value) {
        return static_cast<float>(value > 0 ? std::min(value, 1.0) : 0.0);
    };
    return QColor::fromRgbF(component(r), component(g), component(b), component(a));
}

bool EditorColor::isValid() const {
    return std::ranges::all_of(std::array{r, g, b, a}, [](double value) { return value >= 0 && value <= 1; });
}

} // namespace tembra
