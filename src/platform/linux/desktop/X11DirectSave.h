#pragma once

#include "platform/FilePromises.h"

#include <xcb/xproto.h>

namespace tembra {

class X11Connection;

// The receiving side of X Direct Save: the source of the running drag is told where to write its file, asked
// to do so and waited for. Main thread, while the drop is being handled.
[[nodiscard]] Result<FilePromises::Delivery> receiveDirectSave(const X11Connection &connection,
                                                               xcb_window_t source,
                                                               const QMimeData &pasteboard,
                                                               const QString &folder);

// A name for a file out of one that another program proposes.
[[nodiscard]] QByteArray safeFileName(QByteArray proposed);

} // namespace tembra
