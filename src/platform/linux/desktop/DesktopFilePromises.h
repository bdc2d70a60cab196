#pragma once

#include "platform/FilePromises.h"

#include <QObject>

#include <memory>

namespace tembra {

class X11Connection;

// FilePromises by X Direct Save (freedesktop.org, "Direct Save Protocol" version 0) where there is an X
// server, and by the FileTransfer portal of the session bus.
class DesktopFilePromises final : public FilePromises {
public:
    // Without a connection nothing is saved directly.
    explicit DesktopFilePromises(std::shared_ptr<X11Connection> connection);

    void receive(const QMimeData &pasteboard, const QString &folder,
                 std::function<void(Result<Delivery>)> onDone) override;

private:
    void askPortal(const QString &key, std::function<void(Result<Delivery>)> onDone);

    const std::shared_ptr<X11Connection> m_connection;
    // Ends the interest in answers that are still to come.
    QObject m_context;
};

} // namespace tembra
