#pragma once

#include "screenshots/ScreenshotFileIdentity.h"

#include <QString>
#include <QUuid>

#include <variant>

namespace tembra {

// What a tile is known by while its file's name and content change: a screenshot by its file, an entry of the
// file tray by its own number, since one file may be there twice.
using FileTileID = std::variant<ScreenshotFileIdentity, QUuid>;

[[nodiscard]] inline size_t qHash(const FileTileID &id, size_t seed = 0) {
    return std::visit([seed](const auto &value) { return qHash(value, seed); }, id);
}

// One file as the grids show it. A value.
struct FileTile {
    FileTileID id;
    QString path;
    // Names this version of the file: it changes whenever the file is rewritten.
    QString revision;
    bool isPinned = false;
    // It carries edits that can be changed.
    bool isEdited = false;
    // The file can be reached now.
    bool isAvailable = true;
    bool isFolder = false;

    bool operator==(const FileTile &) const = default;
};

} // namespace tembra
