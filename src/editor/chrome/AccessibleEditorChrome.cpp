#include "editor/chrome/AccessibleEditorChrome.h"

#include "editor/chrome/EditorBanner.h"
#include "editor/chrome/EditorControlRow.h"
#include "editor/chrome/EditorCropSize.h"
#include "editor/chrome/EditorDock.h"
#include "editor/chrome/EditorHeader.h"
#include "editor/chrome/EditorNotice.h"

#include <QAccessibleWidget>

namespace tembra {

namespace {

QAccessibleInterface *accessibleChrome(const QString &, QObject *object) {
    auto *widget = qobject_cast<QWidget *>(object);
    if (qobject_cast<EditorBanner *>(object))
        return new QAccessibleWidget(widget, QAccessible::AlertMessage);
    if (qobject_cast<EditorHeader *>(object) || qobject_cast<EditorDock *>(object))
        return new QAccessibleWidget(widget, QAccessible::ToolBar);
    if (qobject_cast<EditorNotice *>(object))
        return new QAccessibleWidget(widget, QAccessible::Notification);
    if (qobject_cast<EditorCropSize *>(object))
        return new QAccessibleWidget(widget, QAccessible::StaticText);
    if (qobject_cast<EditorControlRow *>(object))
        return new QAccessibleWidget(widget, QAccessible::Grouping);
    return nullptr;
}

} // namespace

void installAccessibleEditorChrome() {
    // Qt keeps each factory once.
    QAccessible::installFactory(accessibleChrome);
}

} // namespace tembra
