#include "editor/model/AnnotationFont.h"

#include <QFontDatabase>

namespace tembra {

QFont annotationFont(int pixelSize) {
    static const bool hasInter = QFontDatabase::hasFamily(QStringLiteral("Inter"));
    QFont font =
        hasInter ? QFont(QStringLiteral("Inter")) : QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPixelSize(pixelSize);
    font.setWeight(QFont::DemiBold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

} // namespace tembra
