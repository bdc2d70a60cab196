#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <functional>
#include <vector>

class QMimeData;

namespace tembra {

// The clipboard that programs share. Main thread.
class Pasteboard {
public:
    static inline const QString plainText = QStringLiteral("public.utf8-plain-text");

    // A file to be pasted as a file and, where it is an image, as that image; or text; or data of a type of
    // the program's own.
    struct Item {
        // Absolute; empty for data alone.
        QString path;
        // "public.png", "public.tiff", `plainText` or a type of the program's own; empty without data.
        QString type;
        QByteArray data;

        bool operator==(const Item &) const = default;
    };

    static inline const QString errorDomain = QStringLiteral("Tembra.Pasteboard");
    enum ErrorCode {
        // Another program owns the clipboard, or the desktop lets only the focused program take it.
        refused = 1,
    };

    virtual ~Pasteboard() = default;
    // After `changeCount` has grown.
    std::function<void()> onChanged;

    // Grows whenever anyone, this program too, changes what is on the clipboard. Tells of every change that
    // happened before the call.
    [[nodiscard]] virtual std::int64_t changeCount() = 0;
    // What anyone put there, in the form in which drops bring it. It belongs to the clipboard and may be gone
    // after the next event; nothing when there is nothing.
    [[nodiscard]] virtual const QMimeData *content() = 0;
    // Puts the items there in place of what was there: all files in their order, and the image of the last
    // item that has one, and data of the program's own types. Succeeds only when other programs are really
    // offered them.
    [[nodiscard]] virtual Result<void> writeObjects(const std::vector<Item> &items) = 0;
};

} // namespace tembra
