#include "editor/model/AnnotationFont.h"

#include <QFontDatabase>
#include <QStringList>

namespace tembra {

namespace {

// The emoji in colour come before typefaces that merely have some.
QStringList families() {
    QStringList result{QStringLiteral("Inter"), QStringLiteral("Noto Color Emoji")};
    erase_if(result, [](const QString &family) { return !QFontDatabase::hasFamily(family); });
    if (!result.contains(QStringLiteral("Inter")))
        result.prepend(QFontDatabase::systemFont(QFontDatabase::GeneralFont).family());
    return result;
}

} // namespace

QFont annotationFont(int pixelSize) {
    static const QStringList installed = families();
    QFont font;
    font.setFamilies(installed);
    font.setPixelSize(pixelSize);
    font.setWeight(QFont::DemiBold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

} // namespace tembra
