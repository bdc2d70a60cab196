#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QMimeData>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <functional>

namespace tembra {

// Files that a drag or the clipboard announces without naming them: their source writes them when they are
// taken, or the desktop opens the way to them then. Main thread. Errors have the domain
// "Tembra.FilePromises".
class FilePromises {
public:
    struct Delivery {
        // Files that are there, or soon will be.
        QStringList paths;
        // What the receiver is to write itself under this name, when it is not empty.
        QString name;
        QByteArray content;
    };

    static inline const QString errorDomain = QStringLiteral("Tembra.FilePromises");
    enum ErrorCode { notDelivered = 1 };

    // The kinds of data that tell of promised files: X Direct Save, and the file transfer of the desktop's
    // portal.
    static inline const QString directSave = QStringLiteral("XdndDirectSave0");
    static inline const QString portalTransfer = QStringLiteral("application/vnd.portal.filetransfer");

    [[nodiscard]] static bool areIn(const QMimeData &pasteboard) {
        return pasteboard.hasFormat(directSave) || pasteboard.hasFormat(portalTransfer);
    }

    virtual ~FilePromises() = default;
    // Has them delivered, into the folder where they have none of their own. Called while the drop is being
    // handled; the answer may come later, or at once. Nothing of the pasteboard is kept.
    virtual void receive(const QMimeData &pasteboard, const QString &folder,
                         std::function<void(Result<Delivery>)> onDone) = 0;
};

} // namespace tembra
