#include "platform/linux/desktop/ClipboardContent.h"

#include "base/FileUri.h"

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>

#include <algorithm>
#include <mutex>

namespace tembra {

namespace {

const QString uriList = QStringLiteral("text/uri-list");
const QString copiedFiles = QStringLiteral("x-special/gnome-copied-files");
const QString png = QStringLiteral("image/png");
const QString tiff = QStringLiteral("image/tiff");
// As programs of every age ask for it.
const QStringList text{QStringLiteral("text/plain;charset=utf-8"), QStringLiteral("text/plain"),
                       QStringLiteral("UTF8_STRING")};

QString imageFormat(const Pasteboard::Item &item) {
    if (item.data.isEmpty())
        return {};
    if (item.type == QLatin1StringView("public.png"))
        return png;
    return item.type == QLatin1StringView("public.tiff") ? tiff : QString();
}

// The names by which Qt knows them.
QByteArray codec(const QString &format) {
    return format == png ? QByteArrayLiteral("png") : QByteArrayLiteral("tiff");
}

QByteArray converted(QByteArray stored, const QByteArray &from, const QByteArray &to) {
    QBuffer source(&stored);
    const QImage image = QImageReader(&source, from).read();
    QByteArray bytes;
    QBuffer target(&bytes);
    if (image.isNull() || !QImageWriter(&target, to).write(image))
        return {};
    return bytes;
}

} // namespace

class ClipboardContent::Image {
public:
    Image(QString format, QByteArray bytes) : m_format(std::move(format)), m_bytes(std::move(bytes)) {}

    [[nodiscard]] QStringList formats() const {
        QStringList formats{m_format};
        if (QImageReader::supportedImageFormats().contains(codec(m_format)) &&
            QImageWriter::supportedImageFormats().contains(codec(other())))
            formats.append(other());
        std::ranges::sort(formats);
        return formats;
    }

    [[nodiscard]] QByteArray data(const QString &format) {
        if (format == m_format)
            return m_bytes;
        std::call_once(m_conversion,
                       [this] { m_converted = converted(m_bytes, codec(m_format), codec(other())); });
        return m_converted;
    }

private:
    [[nodiscard]] QString other() const { return m_format == png ? tiff : png; }

    const QString m_format;
    const QByteArray m_bytes;
    std::once_flag m_conversion;
    QByteArray m_converted;
};

ClipboardContent::ClipboardContent(const std::vector<Pasteboard::Item> &items) {
    for (const Pasteboard::Item &item : items) {
        if (!item.path.isEmpty())
            m_files.append(fileUri(item.path));
        else if (item.type == Pasteboard::plainText)
            std::ranges::for_each(text, [&](const QString &format) { m_others.insert(format, item.data); });
        else if (imageFormat(item).isEmpty() && !item.data.isEmpty())
            m_others.insert(item.type, item.data);
    }
    m_formats = m_others.keys();
    if (!m_files.isEmpty())
        m_formats += QStringList{uriList, copiedFiles};
    const auto last = std::find_if(items.rbegin(), items.rend(),
                                   [](const Pasteboard::Item &item) { return !imageFormat(item).isEmpty(); });
    if (last == items.rend())
        return;
    m_image = std::make_shared<Image>(imageFormat(*last), last->data);
    m_formats += m_image->formats();
}

QByteArray ClipboardContent::data(const QString &format) const {
    if (!m_formats.contains(format))
        return {};
    if (format == uriList)
        return m_files.join("\r\n") + QByteArrayLiteral("\r\n");
    if (format == copiedFiles)
        return QByteArrayLiteral("copy\n") + m_files.join('\n');
    const auto other = m_others.constFind(format);
    return other == m_others.cend() ? m_image->data(format) : *other;
}

} // namespace tembra
