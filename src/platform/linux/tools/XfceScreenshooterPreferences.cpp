#include "platform/linux/tools/XfceScreenshooterPreferences.h"

#include "platform/linux/tools/SettingsText.h"

namespace tembra {

namespace {

enum Action { save = 1, copy = 2, open = 4 };

const QByteArray locationKey = QByteArrayLiteral("screenshot_dir");
const QByteArray actionKey = QByteArrayLiteral("action");
const QByteArray titleKey = QByteArrayLiteral("title");

} // namespace

std::optional<QString> XfceScreenshooterPreferences::location() const {
    const auto stored = settings().value("", locationKey);
    const auto path = stored ? folderPath(fromKConfig(*stored)) : std::nullopt;
    return path.value_or(folders().pictures);
}

std::optional<int> XfceScreenshooterPreferences::action() const {
    bool isNumber = false;
    const int action = settings().value("", actionKey).value_or(QByteArray()).toInt(&isNumber);
    return isNumber ? std::optional(action) : std::nullopt;
}

std::optional<QString> XfceScreenshooterPreferences::target() const {
    const auto action = this->action();
    if (!action)
        return std::nullopt;
    if (*action & Action::save)
        return QStringLiteral("file");
    if (*action & Action::copy)
        return QStringLiteral("clipboard");
    return *action & Action::open ? QStringLiteral("application") : QStringLiteral("other");
}

std::optional<QString> XfceScreenshooterPreferences::name() const {
    const auto stored = settings().value("", titleKey);
    const QString usual = QStringLiteral("Screenshot");
    const QString title = stored && !stored->isEmpty() ? fromKConfig(*stored)
                                                       : m_translations("xfce4-screenshooter", "Screenshot");
    return title == usual ? std::nullopt : std::optional(title);
}

void XfceScreenshooterPreferences::setLocation(const std::optional<QString> &path) {
    if (!path)
        change("", locationKey, std::nullopt);
    else if (const auto folder = absolute(*path))
        change("", locationKey, folderUri(*folder));
}

void XfceScreenshooterPreferences::setTarget(const std::optional<QString> &target) {
    if (!target)
        change("", actionKey, std::nullopt);
    else if (*target == u"file")
        change("", actionKey, QByteArray::number((action().value_or(0) | Action::save) & ~Action::copy));
    else if (*target == u"clipboard")
        change("", actionKey, QByteArray::number((action().value_or(0) | Action::copy) & ~Action::save));
}

} // namespace tembra
