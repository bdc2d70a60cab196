#pragma once

class QKeySequence;
class QString;
class QWidget;

namespace tembra {

// Gives the widget a tool tip that tells the keys that do the same.
void setToolTipWithKeys(QWidget &widget, const QString &text, const QKeySequence &keys);

} // namespace tembra
