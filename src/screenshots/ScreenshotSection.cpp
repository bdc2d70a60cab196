#include "screenshots/ScreenshotSection.h"

#include <QCoreApplication>

namespace tembra {

QString title(ScreenshotSectionKind kind) {
    switch (kind) {
    case ScreenshotSectionKind::pinned:
        return QCoreApplication::translate("ScreenshotSection", "Pinned");
    case ScreenshotSectionKind::today:
        return QCoreApplication::translate("ScreenshotSection", "Today");
    case ScreenshotSectionKind::yesterday:
        return QCoreApplication::translate("ScreenshotSection", "Yesterday");
    case ScreenshotSectionKind::recent:
        return QCoreApplication::translate("ScreenshotSection", "Last 7 Days");
    case ScreenshotSectionKind::older:
        return QCoreApplication::translate("ScreenshotSection", "Older");
    }
    Q_UNREACHABLE();
}

} // namespace tembra
