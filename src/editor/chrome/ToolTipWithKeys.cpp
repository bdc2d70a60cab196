#include "editor/chrome/ToolTipWithKeys.h"

#include "controls/TembraToolTip.h"

#include <QCoreApplication>
#include <QKeySequence>

namespace tembra {

void setToolTipWithKeys(QWidget &widget, const QString &text, const QKeySequence &keys) {
    TembraToolTip::set(widget, QCoreApplication::translate("EditorToolTip", "%1 (%2)")
                                   .arg(text, keys.toString(QKeySequence::NativeText)));
}

} // namespace tembra
