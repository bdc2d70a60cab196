#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <utility>

namespace tembra {

// The messages of a catalogue in the TS format of Qt Linguist: by context and source text.
struct CatalogueFile {
    struct Message {
        QStringList translations;
        bool isFinished = true;
        bool hasPlurals = false;
    };

    // Empty when the file cannot be read.
    [[nodiscard]] static CatalogueFile read(const QString &path);

    QMap<std::pair<QString, QString>, Message> messages;
};

} // namespace tembra
