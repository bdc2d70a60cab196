#pragma once

#include <QString>

#include <functional>

namespace tembra {

// The translation of another program's text through that program's own catalogue; the text itself where the
// catalogue or the translation is missing. (catalogue, text)
using Translations = std::function<QString(const char *, const char *)>;

// The catalogues that are installed, in the language of the session.
[[nodiscard]] QString installedTranslation(const char *catalogue, const char *text);

} // namespace tembra
