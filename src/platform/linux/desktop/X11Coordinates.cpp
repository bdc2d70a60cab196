#include "platform/linux/desktop/X11Coordinates.h"

#include <QGuiApplication>
#include <QScreen>

#include <cmath>

namespace tembra {

QRect nativePixels(const ScreenRect &rect) {
    const QPointF centre(rect.midX(), rect.y + rect.height / 2);
    const QScreen *screen = QGuiApplication::screenAt(centre.toPoint());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    const QPoint origin = screen ? screen->geometry().topLeft() : QPoint();
    const double scale = screen ? screen->devicePixelRatio() : 1;
    const auto pixel = [scale](double point, int start) { return start + (point - start) * scale; };
    const int left = static_cast<int>(std::floor(pixel(rect.x, origin.x())));
    const int top = static_cast<int>(std::floor(pixel(rect.y, origin.y())));
    const int right = static_cast<int>(std::ceil(pixel(rect.right(), origin.x())));
    const int bottom = static_cast<int>(std::ceil(pixel(rect.bottom(), origin.y())));
    return {left, top, right - left, bottom - top};
}

} // namespace tembra
