#include "platform/linux/desktop/SleepWatch.h"

#include <QDBusConnection>

namespace tembra {

SleepWatch::SleepWatch(std::function<void(bool)> onChange) : m_onChange(std::move(onChange)) {
    QDBusConnection::systemBus().connect(
        QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
        QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("PrepareForSleep"), this,
        SLOT(prepareForSleep(bool)));
}

void SleepWatch::prepareForSleep(bool isAboutToSleep) {
    m_onChange(isAboutToSleep);
}

} // namespace tembra
