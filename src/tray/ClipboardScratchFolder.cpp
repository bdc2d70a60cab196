#include "tray/ClipboardScratchFolder.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <unistd.h>

namespace tembra {

namespace {

constexpr auto onlyOwner = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

tl::unexpected<Error> scratchFailure(ClipboardScratchFolder::ErrorCode code, const QString &message) {
    return failure({ClipboardScratchFolder::errorDomain, code, message, {}});
}

// Whether it is a folder of ours and no link, with nobody else let in.
bool isSafe(const QString &root) {
    const QFileInfo file(root);
    if (file.isSymLink() || !file.isDir() || file.ownerId() != ::geteuid())
        return false;
    constexpr auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther |
                            QFile::WriteOther | QFile::ExeOther;
    return !(file.permissions() & others) || QFile::setPermissions(root, onlyOwner);
}

bool prepare(const QString &root) {
    if (QFileInfo(root).isSymLink())
        QFile::remove(root);
    QDir().mkpath(QFileInfo(root).path());
    QDir().mkdir(root, onlyOwner);
    return isSafe(root);
}

bool isTiff(const QByteArray &bytes) {
    return bytes.startsWith(QByteArrayView("II*\0", 4)) || bytes.startsWith(QByteArrayView("MM\0*", 4));
}

// Empty when the bytes are no image.
QByteArray checked(const PasteboardImage &image) {
    if (image.format == u"png")
        return image.bytes.startsWith("\x89PNG\r\n\x1a\n") ? image.bytes : QByteArray();
    if (image.format == u"tiff")
        return isTiff(image.bytes) ? image.bytes : QByteArray();
    const QImage decoded = image.pixels.isNull() ? QImage::fromData(image.bytes) : image.pixels;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return !decoded.isNull() && decoded.save(&buffer, "PNG") ? bytes : QByteArray();
}

} // namespace

ClipboardScratchFolder::ClipboardScratchFolder(const QStringList &temporaryFolders) {
    for (const QString &folder : temporaryFolders) {
        if (!folder.isEmpty())
            m_roots.append(folder + QStringLiteral("/Pavrell-Clipboard"));
    }
}

void ClipboardScratchFolder::empty() const {
    for (const QString &root : m_roots) {
        if (!isSafe(root))
            continue;
        const auto entries =
            QDir(root).entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
        for (const QFileInfo &entry : entries) {
            if (entry.fileName().startsWith(m_run))
                continue;
            if (entry.isDir() && !entry.isSymLink())
                QDir(entry.filePath()).removeRecursively();
            else
                QFile::remove(entry.filePath());
        }
    }
}

Result<QString> ClipboardScratchFolder::makeStorageDirectory() const {
    for (const QString &root : m_roots) {
        const QString folder = root + u'/' + m_run + u'-' + QUuid::createUuid().toString(QUuid::Id128);
        if (prepare(root) && QDir().mkdir(folder, onlyOwner))
            return folder;
    }
    return scratchFailure(noFolder, QStringLiteral("No folder can be made in %1").arg(m_roots.join(u' ')));
}

Result<QString> ClipboardScratchFolder::write(const QString &name, const QByteArray &content) const {
    const auto folder = makeStorageDirectory();
    if (!folder)
        return failure(folder.error());
    QSaveFile file(*folder + u'/' + name);
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit())
        return file.fileName();
    const QString message = file.errorString();
    file.cancelWriting();
    QDir(*folder).removeRecursively();
    return scratchFailure(notWritten, message);
}

Result<QString> ClipboardScratchFolder::write(const PasteboardImage &image) const {
    const QByteArray bytes = checked(image);
    if (bytes.isEmpty())
        return scratchFailure(noImage, QStringLiteral("This is no image"));
    return write(image.format == u"tiff" ? QStringLiteral("File Tray Image.tiff")
                                         : QStringLiteral("File Tray Image.png"),
                 bytes);
}

} // namespace tembra
