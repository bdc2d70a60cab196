#pragma once

#include <qnamespace.h>

namespace tembra {

// The pointer's shape over a handle of a rectangle (RectHandles.h).
[[nodiscard]] constexpr Qt::CursorShape cursorOfRectHandle(int handle) {
    switch (handle % 4) {
    case 0:
        return Qt::SizeFDiagCursor;
    case 1:
        return Qt::SizeVerCursor;
    case 2:
        return Qt::SizeBDiagCursor;
    default:
        return Qt::SizeHorCursor;
    }
}

} // namespace tembra
