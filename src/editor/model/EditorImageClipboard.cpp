#include "editor/model/EditorImageClipboard.h"

#include "editor/model/UuidText.h"

#include <QDir>
#include <QFileInfo>

namespace tembra {

namespace {

const QString folderPrefix = QStringLiteral("Editor-");

// Names of files are at most 255 bytes long, the extension included.
QString shortened(QString name) {
    constexpr int longest = 251;
    while (name.toUtf8().size() > longest)
        name.chop(1);
    return name;
}

} // namespace

Result<QString> EditorImageClipboard::prepare(const QByteArray &png, const QString &source,
                                              const QString &root, const FileCoordinator &files) {
    const QString id = uuidText(QUuid::createUuid());
    const QString folder = root + u'/' + folderPrefix + id;
    const QString file =
        folder + u'/' + shortened(QFileInfo(source).completeBaseName()) + QStringLiteral(".png");
    const auto written =
        files.makePrivateFolder(folder).and_then([&] { return files.writeAtomically(file, png); });
    if (written)
        return file;
    discard(file);
    return failure(written.error());
}

Result<void> EditorImageClipboard::write(const QByteArray &png, const QString &file, Pasteboard &pasteboard) {
    return pasteboard.writeObjects({{.path = file, .type = QStringLiteral("public.png"), .data = png}});
}

void EditorImageClipboard::discard(const QString &file) {
    const QFileInfo folder(QFileInfo(file).path());
    // Whatever path this is handed, only folders that were made here go.
    if (folder.fileName().startsWith(folderPrefix))
        QDir(folder.filePath()).removeRecursively();
}

} // namespace tembra
