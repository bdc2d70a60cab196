#pragma once

#include <QLocale>
#include <QStringList>

namespace tembra {

// The user's languages as Tesseract names them, most wanted first, and English, which interfaces are full of.
// The first one wins what two of them can read: German knows the letters of English, but Russian has others
// that look like them, so languages of other scripts come last.
[[nodiscard]] QStringList engineLanguages(const QStringList &localeNames);
// The chosen ones in the order in which they are best read together.
[[nodiscard]] QStringList inReadingOrder(QStringList languages);
// What the language calls itself; its code where that is not known.
[[nodiscard]] QString languageName(const QString &language);

} // namespace tembra
