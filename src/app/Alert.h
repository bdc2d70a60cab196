#pragma once

#include <QString>

namespace tembra {

// Tells of a failure and returns at once. Of a long message the beginning is shown, and the whole on demand.
void showAlert(const QString &title, const QString &message);

} // namespace tembra
