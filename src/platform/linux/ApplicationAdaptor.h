#pragma once

#include "platform/SingleInstance.h"

#include <QDBusAbstractAdaptor>
#include <QVariantMap>

namespace tembra {

// The D-Bus interface org.freedesktop.Application, through which desktops start the program and its actions.
class ApplicationAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    ApplicationAdaptor(QObject *parent, SingleInstance::Handler handler);

public Q_SLOTS:
    void Activate(const QVariantMap &platformData);
    void Open(const QStringList &uris, const QVariantMap &platformData);
    void ActivateAction(const QString &name, const QVariantList &parameters, const QVariantMap &platformData);

private:
    void perform(const QString &command, const QStringList &arguments);

    SingleInstance::Handler m_handler;
};

} // namespace tembra
