#include "platform/linux/desktop/XSettings.h"

#include "platform/linux/desktop/X11Connection.h"

#include <QDataStream>
#include <QIODevice>

#include <optional>

namespace tembra {

namespace {

constexpr std::uint8_t lastByteFirst = 0;
constexpr int colorSize = 8;
enum class Type : std::uint8_t { integer = 0, string = 1, color = 2 };

// In units of four bytes. Desktops write a few hundred.
constexpr std::uint32_t longestProperty = 1 << 18;

// Padded to four bytes, which those of the last setting may lack.
QByteArray readText(QDataStream &stream, qsizetype length) {
    if (length > stream.device()->bytesAvailable()) {
        stream.setStatus(QDataStream::ReadPastEnd);
        return {};
    }
    QByteArray text = stream.device()->read(length);
    stream.device()->skip(-length & 3);
    return text;
}

// Adds the setting that comes next; the stream tells of failure.
void readSetting(QDataStream &stream, XSettings &settings) {
    std::uint8_t type = 0;
    std::uint8_t unused = 0;
    std::uint16_t nameLength = 0;
    stream >> type >> unused >> nameLength;
    const QByteArray name = readText(stream, nameLength);
    std::uint32_t serial = 0;
    stream >> serial;
    if (type == static_cast<std::uint8_t>(Type::integer)) {
        std::int32_t value = 0;
        stream >> value;
        settings[name].emplace<std::int32_t>(value);
    } else if (type == static_cast<std::uint8_t>(Type::string)) {
        std::uint32_t length = 0;
        stream >> length;
        settings[name].emplace<QByteArray>(readText(stream, length));
    } else if (type != static_cast<std::uint8_t>(Type::color) || stream.skipRawData(colorSize) != colorSize) {
        stream.setStatus(QDataStream::ReadCorruptData);
    }
}

} // namespace

XSettings parseXSettings(const QByteArray &bytes) {
    QDataStream stream(bytes);
    std::uint8_t byteOrder = 0;
    stream >> byteOrder;
    stream.setByteOrder(byteOrder == lastByteFirst ? QDataStream::LittleEndian : QDataStream::BigEndian);
    stream.skipRawData(3);
    std::uint32_t serial = 0;
    std::uint32_t count = 0;
    stream >> serial >> count;
    XSettings settings;
    for (std::uint32_t i = 0; i < count && stream.status() == QDataStream::Ok; ++i)
        readSetting(stream, settings);
    return stream.status() == QDataStream::Ok ? settings : XSettings();
}

XSettings readXSettings(const X11Connection &connection) {
    const QByteArray selection = "_XSETTINGS_S" + QByteArray::number(connection.screenNumber());
    const xcb_window_t manager = connection.selectionOwner(connection.atom(selection));
    if (manager == XCB_WINDOW_NONE)
        return {};
    const xcb_atom_t property = connection.atom(QByteArrayLiteral("_XSETTINGS_SETTINGS"));
    xcb_connection_t *const xcb = connection.xcb();
    const X11Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        xcb, xcb_get_property(xcb, false, manager, property, property, 0, longestProperty), nullptr));
    if (!reply || reply->format != 8)
        return {};
    return parseXSettings(QByteArray(static_cast<const char *>(xcb_get_property_value(reply.get())),
                                     xcb_get_property_value_length(reply.get())));
}

} // namespace tembra
