#include "platform/linux/tools/KsnipPreferences.h"

#include "platform/linux/tools/SettingsText.h"

namespace tembra {

namespace {

const QByteArray application = QByteArrayLiteral("Application");
const QByteArray locationKey = QByteArrayLiteral("SaveDirectory");
const QByteArray nameKey = QByteArrayLiteral("SaveFilename");
const QByteArray saveAtOnceKey = QByteArrayLiteral("AutoSaveNewCaptures");
const QByteArray copyAtOnceKey = QByteArrayLiteral("AutoCopyToClipboardNewCaptures");

} // namespace

std::optional<QString> KsnipPreferences::location() const {
    const auto stored = settings().value(application, locationKey);
    const auto path = stored ? fromQtIni(*stored) : std::nullopt;
    return path && path->startsWith(u'/') ? folderPath(*path) : folders().home;
}

std::optional<QString> KsnipPreferences::target() const {
    const RcFile file = settings();
    if (file.value(application, saveAtOnceKey) == "true")
        return QStringLiteral("file");
    if (file.value(application, copyAtOnceKey) == "true")
        return QStringLiteral("clipboard");
    return std::nullopt;
}

std::optional<QString> KsnipPreferences::name() const {
    const auto stored = settings().value(application, nameKey);
    const auto pattern = stored ? fromQtIni(*stored) : std::nullopt;
    if (!pattern || *pattern == u"ksnip_$Y$M$D-$T")
        return std::nullopt;
    // "$…" is a part of the date, "#" a counter.
    return fixedBeginning(pattern->left(pattern->indexOf(u'#')), u'$');
}

void KsnipPreferences::setLocation(const std::optional<QString> &path) {
    if (!path)
        change(application, locationKey, std::nullopt);
    else if (const auto folder = absolute(*path))
        change(application, locationKey, toQtIni(*folder));
}

void KsnipPreferences::setTarget(const std::optional<QString> &target) {
    if (!target) {
        change(application, saveAtOnceKey, std::nullopt);
        change(application, copyAtOnceKey, std::nullopt);
    } else if (*target == u"file") {
        change(application, saveAtOnceKey, QByteArrayLiteral("true"));
    } else if (*target == u"clipboard") {
        change(application, saveAtOnceKey, QByteArrayLiteral("false"));
        change(application, copyAtOnceKey, QByteArrayLiteral("true"));
    }
}

} // namespace tembra
