#pragma once

#include <QByteArray>
#include <QHash>

#include <cstdint>
#include <variant>

namespace tembra {

class X11Connection;

// What a desktop on X11 tells its programs, by name: numbers and texts (freedesktop.org, XSETTINGS 0.5).
using XSettings = QHash<QByteArray, std::variant<std::int32_t, QByteArray>>;

// The settings in the bytes of the property; none when these are cut off or of another form.
[[nodiscard]] XSettings parseXSettings(const QByteArray &bytes);
// Of the program that manages them at this moment; none without one.
[[nodiscard]] XSettings readXSettings(const X11Connection &connection);

} // namespace tembra
