#include "platform/linux/tools/Translations.h"

#include <libintl.h>

namespace tembra {

QString installedTranslation(const char *catalogue, const char *text) {
    bind_textdomain_codeset(catalogue, "UTF-8");
    return QString::fromUtf8(dgettext(catalogue, text));
}

} // namespace tembra
