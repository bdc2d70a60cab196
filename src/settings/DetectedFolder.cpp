#include "settings/DetectedFolder.h"

#include <QDir>

namespace tembra {

namespace {

// cleanPath keeps a ".." that leads above the root, where the system stays at the root.
QString standardised(const QString &path) {
    QString clean = QDir::cleanPath(path);
    while (clean.startsWith(u"/../"))
        clean.remove(0, 3);
    return clean == u"/.." ? QStringLiteral("/") : clean;
}

} // namespace

QString detectedFolder(const std::optional<QString> &location, const StandardFolders &folders) {
    if (!location || location->trimmed().isEmpty())
        return folders.desktop;
    QString path = *location;
    if (path == u"~")
        path = folders.home;
    else if (path.startsWith(u"~/"))
        path = folders.home + u'/' + path.mid(2);
    return path.startsWith(u'/') ? standardised(path) : folders.desktop;
}

} // namespace tembra
