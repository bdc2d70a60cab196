#include "shelf/FileOpening.h"

#include <QCoreApplication>

namespace tembra {

void revealFiles(Workspace &workspace, const QStringList &paths, const ShowFailure &show) {
    if (paths.isEmpty())
        return;
    if (const auto revealed = workspace.reveal(paths); !revealed)
        show(QCoreApplication::translate("FileOpening", "Couldn’t Show in Finder"), revealed.error().message);
}

void openFiles(Workspace &workspace, const QStringList &paths, const QString &applicationIdentifier,
               const ShowFailure &show) {
    if (paths.isEmpty())
        return;
    if (const auto opened = workspace.open(paths, applicationIdentifier); !opened)
        show(QCoreApplication::translate("FileOpening", "Couldn’t Open Files"), opened.error().message);
}

} // namespace tembra
