#include "platform/linux/tools/FlameshotPreferences.h"

#include "platform/linux/tools/SettingsText.h"

namespace tembra {

namespace {

const QByteArray general = QByteArrayLiteral("General");
const QByteArray locationKey = QByteArrayLiteral("savePath");
const QByteArray isFixedKey = QByteArrayLiteral("savePathFixed");
const QByteArray patternKey = QByteArrayLiteral("filenamePattern");

} // namespace

std::optional<QString> FlameshotPreferences::location() const {
    const auto stored = settings().value(general, locationKey);
    const auto path = stored ? fromQtIni(*stored) : std::nullopt;
    return path && path->startsWith(u'/') ? folderPath(*path) : folders().pictures;
}

std::optional<QString> FlameshotPreferences::name() const {
    const auto stored = settings().value(general, patternKey);
    const auto pattern = stored ? fromQtIni(*stored) : std::nullopt;
    return pattern ? fixedBeginning(*pattern, u'%') : std::nullopt;
}

void FlameshotPreferences::setLocation(const std::optional<QString> &path) {
    if (!path) {
        change(general, locationKey, std::nullopt);
        return;
    }
    const auto folder = absolute(*path);
    if (!folder)
        return;
    change(general, locationKey, toQtIni(*folder));
    // Otherwise the tool asks for a folder each time; who chose to be asked stays asked.
    if (!settings().value(general, isFixedKey))
        change(general, isFixedKey, QByteArrayLiteral("true"));
}

} // namespace tembra
