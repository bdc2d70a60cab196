#include "settings/ScreenshotFolderAccess.h"

#include "settings/CocoaError.h"
#include "settings/FolderPath.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace tembra {

namespace {

QString sentence(const char *text, const QString &folder) {
    return QCoreApplication::translate("ScreenshotFolderAccess", text).arg(folder);
}

QString originOf(const Error &error) {
    if (error.domain == CocoaError::domain || error.domain == posixErrorDomain)
        return error.domain;
    return QStringLiteral("other");
}

tl::unexpected<Error> bookmarkFailure(const char *stage, const Error &error) {
    qWarning("Folder bookmark failed; stage=%s domain=%s code=%d", stage, qUtf8Printable(originOf(error)),
             error.code);
    return failure(error);
}

} // namespace

ScreenshotFolderAccess::ScreenshotFolderAccess(const Bookmarks &bookmarks, const FileFactsReader &files,
                                               const StandardFolders &folders)
    : m_bookmarks(&bookmarks), m_files(&files), m_folders(folders) {}

Result<QByteArray> ScreenshotFolderAccess::grant(const QString &folder) {
    const QString standardised = QDir::cleanPath(folder);
    if (const auto valid = validate(standardised, true); !valid)
        return failure(valid.error());
    // The bookmark follows the folder itself, which a link only leads to.
    auto bookmark = m_bookmarks->create(withoutLinks(standardised));
    if (bookmark)
        m_folder = standardised;
    return bookmark;
}

Result<std::optional<QByteArray>> ScreenshotFolderAccess::restore(const std::optional<QByteArray> &bookmark) {
    if (!bookmark)
        return std::nullopt;
    const auto resolved = m_bookmarks->resolve(*bookmark);
    if (!resolved)
        return bookmarkFailure("resolve", resolved.error());
    const QString folder = QDir::cleanPath(resolved->path);
    if (const auto valid = validate(folder, true); !valid)
        return bookmarkFailure("validate", valid.error());
    std::optional<QByteArray> renewed;
    if (resolved->stale) {
        const auto created = m_bookmarks->create(folder);
        if (!created)
            return bookmarkFailure("renew", created.error());
        renewed = *created;
    }
    m_folder = folder;
    qInfo("Folder bookmark restored; stale=%s scope=true", resolved->stale ? "true" : "false");
    return renewed;
}

std::optional<QString> ScreenshotFolderAccess::lastKnownFolder(const QByteArray &bookmark) const {
    return m_bookmarks->lastKnownPath(bookmark);
}

Result<void> ScreenshotFolderAccess::validate(const QString &folder, bool enumerateContents) const {
    if (!folder.startsWith(u'/'))
        return cocoaFailure(
            CocoaError::fileReadUnsupportedScheme,
            sentence(QT_TRANSLATE_NOOP("ScreenshotFolderAccess", "“%1” is not a folder on this computer."),
                     folder));
    const auto facts = m_files->targetFacts(folder);
    if (!facts)
        return failure(facts.error());
    if (facts->kind != FileKind::directory)
        return cocoaFailure(
            CocoaError::fileReadNotDirectory,
            sentence(QT_TRANSLATE_NOOP("ScreenshotFolderAccess", "“%1” is not a folder."), folder));
    if (isInTrash(folder))
        return cocoaFailure(
            CocoaError::fileReadNoPermission,
            sentence(QT_TRANSLATE_NOOP("ScreenshotFolderAccess", "“%1” is in the Trash."), folder));
    return m_files->canReadFolder(folder, enumerateContents);
}

bool ScreenshotFolderAccess::isInTrash(const QString &folder) const {
    const QString path = withoutLinks(folder) + u'/';
    return std::ranges::any_of(m_folders.trash, [&path](const QString &trash) {
        return path.startsWith(withoutLinks(trash) + u'/');
    });
}

} // namespace tembra
