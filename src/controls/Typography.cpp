#include "controls/Typography.h"

#include <QFontDatabase>

namespace tembra::typography {

namespace {

bool hasInter() {
    static const bool installed = QFontDatabase::hasFamily(QStringLiteral("Inter"));
    return installed;
}

} // namespace

QFont font(int size, QFont::Weight weight) {
    QFont result = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    if (hasInter())
        result.setFamily(QStringLiteral("Inter"));
    result.setPixelSize(size);
    result.setWeight(weight);
    return result;
}

} // namespace tembra::typography
