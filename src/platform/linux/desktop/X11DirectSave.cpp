#include "platform/linux/desktop/X11DirectSave.h"

#include "base/FilePath.h"
#include "base/FileUri.h"
#include "platform/linux/desktop/X11Connection.h"

#include <QCoreApplication>

#include <climits>

namespace tembra {

namespace {

tl::unexpected<Error> notDelivered() {
    return failure(
        {FilePromises::errorDomain,
         FilePromises::notDelivered,
         QCoreApplication::translate("FilePromises", "The program that was to write the file did not do so."),
         {}});
}

// The property of the source's window by which both sides talk.
class SharedName {
public:
    SharedName(const X11Connection &connection, xcb_window_t source)
        : m_connection(connection),
          m_property(connection.atom(FilePromises::directSave.toLatin1())),
          m_source(source) {}

    [[nodiscard]] QByteArray read() const {
        constexpr std::uint32_t longestInWords = 1024;
        xcb_connection_t *const xcb = m_connection.xcb();
        const X11Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
            xcb,
            xcb_get_property(xcb, false, m_source, m_property, XCB_GET_PROPERTY_TYPE_ANY, 0, longestInWords),
            nullptr));
        if (!reply || reply->format != 8)
            return {};
        return {static_cast<const char *>(xcb_get_property_value(reply.get())),
                xcb_get_property_value_length(reply.get())};
    }

    [[nodiscard]] bool write(const QByteArray &text) const {
        xcb_connection_t *const xcb = m_connection.xcb();
        const auto request =
            xcb_change_property_checked(xcb, XCB_PROP_MODE_REPLACE, m_source, m_property,
                                        m_connection.atom(QByteArrayLiteral("text/plain")), 8,
                                        static_cast<std::uint32_t>(text.size()), text.constData());
        const X11Reply<xcb_generic_error_t> error(xcb_request_check(xcb, request));
        return !error;
    }

private:
    const X11Connection &m_connection;
    const xcb_atom_t m_property;
    const xcb_window_t m_source;
};

} // namespace

QByteArray safeFileName(QByteArray proposed) {
    proposed = proposed.mid(proposed.lastIndexOf('/') + 1);
    // Up to a zero byte, if there is one.
    proposed = QByteArray(proposed.constData());
    proposed.truncate(NAME_MAX);
    const bool isName = !proposed.isEmpty() && proposed != "." && proposed != "..";
    return isName ? proposed : QByteArrayLiteral("File");
}

Result<FilePromises::Delivery> receiveDirectSave(const X11Connection &connection, xcb_window_t source,
                                                 const QMimeData &pasteboard, const QString &folder) {
    const SharedName shared(connection, source);
    const QString name = pathFromBytes(safeFileName(shared.read()));
    const QString path = folder + u'/' + name;
    if (!shared.write(fileUri(path)))
        return notDelivered();
    const QByteArray answer = pasteboard.data(FilePromises::directSave);
    if (answer.startsWith('S'))
        return FilePromises::Delivery{.paths = {path}};
    // It cannot write there: we are to.
    const QString bytes = QStringLiteral("application/octet-stream");
    if (answer.startsWith('F') && pasteboard.hasFormat(bytes))
        return FilePromises::Delivery{.name = name, .content = pasteboard.data(bytes)};
    // Tells the source that nothing came of it.
    static_cast<void>(shared.write({}));
    return notDelivered();
}

} // namespace tembra
