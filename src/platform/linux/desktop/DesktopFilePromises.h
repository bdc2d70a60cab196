#pragma once

#include "platform/FilePromises.h"
#include "platform/linux/desktop/X11Connection.h"

#include <QObject>

#include <memory>

namespace tembra {

// FilePromises by X Direct Save (freedesktop.org, "Direct Save Protocol" version 0) where there is an X
// server, and by the FileTransfer portal of the session bus.
class DesktopFilePromises final : public FilePromises {
public:
    // Without a connection nothing is saved directly.
    explicit DesktopFilePromises(std::shared_ptr<X11Connection> connection);

    void receive(const QMimeData &pasteboard, const QString &folder,
                 std::function<void(Result<Delivery>)> onDone) override;

private:
    void watchDrags();
    void askPortal(const QString &key, std::function<void(Result<Delivery>)> onDone);

    const std::shared_ptr<X11Connection> m_connection;
    // The window that what is dragged over ours comes from; another one may hand over the content.
    xcb_window_t m_dragSource = XCB_WINDOW_NONE;
    std::unique_ptr<X11Connection::Subscription> m_drags;
    // Ends the interest in answers that are still to come.
    QObject m_context;
};

} // namespace tembra
