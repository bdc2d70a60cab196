#pragma once

#include <QByteArray>
#include <QString>

namespace tembra {

// A rendered image on its way into another program: its PNG, and a file with that.
struct EditorDraggedImage {
    QByteArray png;
    QString file;
};

} // namespace tembra
