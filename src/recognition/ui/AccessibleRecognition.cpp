#include "recognition/ui/AccessibleRecognition.h"

#include "recognition/ui/OCRDropView.h"
#include "recognition/ui/OCRLoadingView.h"
#include "recognition/ui/OCRPictureView.h"
#include "recognition/ui/OCRResultCard.h"

#include <QAccessibleWidget>

namespace tembra {

namespace {

QAccessibleInterface *accessibleView(const QString &, QObject *object) {
    auto *widget = qobject_cast<QWidget *>(object);
    if (qobject_cast<OCRPictureView *>(object))
        return new QAccessibleWidget(widget, QAccessible::Graphic);
    if (qobject_cast<OCRDropView *>(object) || qobject_cast<OCRResultCard *>(object) ||
        qobject_cast<OCRLoadingView *>(object))
        return new QAccessibleWidget(widget, QAccessible::Grouping);
    return nullptr;
}

} // namespace

void installAccessibleRecognition() {
    // Qt keeps each factory once.
    QAccessible::installFactory(accessibleView);
}

} // namespace tembra
