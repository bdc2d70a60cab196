#pragma once

#include "platform/Pasteboard.h"

#include <QHash>
#include <QStringList>

#include <memory>

namespace tembra {

// What the clipboard offers of some items, by MIME type: all files in their order, as any program and as file
// managers want them, the image of the last item that has one, as PNG and as TIFF, and data of other types as
// it is. A value, for any thread; its copies share their bytes.
class ClipboardContent {
public:
    explicit ClipboardContent(const std::vector<Pasteboard::Item> &items = {});

    [[nodiscard]] QStringList formats() const { return m_formats; }
    // An image that is not stored in the format is converted when it is first asked for, which takes time.
    // Empty for what is not offered and for an image that cannot be read.
    [[nodiscard]] QByteArray data(const QString &format) const;

private:
    class Image;

    QStringList m_formats;
    // Data of other types, by type.
    QHash<QString, QByteArray> m_others;
    // As they stand in URLs, without what separates them.
    QList<QByteArray> m_files;
    std::shared_ptr<Image> m_image;
};

} // namespace tembra
