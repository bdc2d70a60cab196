#pragma once

#include "platform/SingleInstance.h"

#include <QDBusAbstractAdaptor>
#include <QDBusMessage>

namespace tembra {

// The D-Bus interface app.tembra.Tembra: every command of the command line, by name.
class TembraAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "app.tembra.Tembra")

public:
    TembraAdaptor(QObject *parent, SingleInstance::Handler handler);

public Q_SLOTS:
    QString Command(const QString &command, const QStringList &arguments, const QDBusMessage &message);

private:
    SingleInstance::Handler m_handler;
};

} // namespace tembra
