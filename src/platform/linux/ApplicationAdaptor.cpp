#include "platform/linux/ApplicationAdaptor.h"

namespace tembra {

ApplicationAdaptor::ApplicationAdaptor(QObject *parent, SingleInstance::Handler handler)
    : QDBusAbstractAdaptor(parent), m_handler(std::move(handler)) {}

void ApplicationAdaptor::Activate(const QVariantMap &) {
    (void)m_handler(QStringLiteral("reopen"), {});
}

void ApplicationAdaptor::Open(const QStringList &, const QVariantMap &) {
    (void)m_handler(QStringLiteral("reopen"), {});
}

// The actions of the desktop file are commands of the command line.
void ApplicationAdaptor::ActivateAction(const QString &name, const QVariantList &, const QVariantMap &) {
    (void)m_handler(name, {});
}

} // namespace tembra
