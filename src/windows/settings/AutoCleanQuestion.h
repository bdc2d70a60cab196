#pragma once

#include "windows/settings/AutoCleanChange.h"

class QWidget;

namespace tembra {

// Asks the question in a dialog of the window. Returns at once; `decide` is called with the answer, and with
// no where the dialog is closed.
void showAutoCleanQuestion(QWidget &window, const AutoCleanChange::Question &question,
                           std::function<void(bool agrees)> decide);

} // namespace tembra
