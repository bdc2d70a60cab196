#pragma once

#include <QLocale>
#include <QStringList>

namespace tembra {

// The user's languages as Tesseract names them, most wanted first, and English, which interfaces are full of.
[[nodiscard]] QStringList engineLanguages(const QStringList &localeNames);

} // namespace tembra
