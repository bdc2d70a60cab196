#pragma once

#include <QString>
#include <QStringList>

namespace tembra {

// The folders of the user and of the program: absolute clean paths without a final slash. Values; read once
// at start.
struct StandardFolders {
    QString home;
    QString desktop;
    QString documents;
    QString downloads;
    QString pictures;
    QString videos;
    QString music;
    QString publicShare;
    // Where programs keep data of the user's that the user does not look at.
    QString library;
    QString applications;
    // Where users share files with each other, and the root of the file system.
    QString shared;
    QString root;

    // Every folder that holds trashed files of the user's own volume.
    QStringList trash;

    // The program's own: settings, lasting data, what can be made again, and what ends with the session.
    QString configuration;
    QString data;
    QString cache;
    QString runtime;
    // Where files may lie that nobody needs after the program ended.
    QString temporary;
};

} // namespace tembra
