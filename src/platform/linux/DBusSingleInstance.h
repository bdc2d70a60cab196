#pragma once

#include "platform/SingleInstance.h"

#include <QObject>

#include <memory>

namespace tembra {

class TembraAdaptor;

// SingleInstance by the well-known name app.tembra.Tembra on the session bus, with the interfaces
// app.tembra.Tembra and org.freedesktop.Application (freedesktop.org, desktop entries activated over D-Bus)
// at /app/tembra/Tembra.
class DBusSingleInstance final : public SingleInstance {
public:
    DBusSingleInstance();
    ~DBusSingleInstance() override;

    Result<void> claim(Handler handler) override;
    void release() override;
    void announceCapture(const QString &path) override;
    Result<QString> send(const QString &command, const QStringList &arguments, bool startIfNeeded) override;

private:
    std::unique_ptr<QObject> m_object;
    // Belongs to it.
    TembraAdaptor *m_adaptor = nullptr;
};

} // namespace tembra
