#include "screenshots/DesktopScreenshotOrganizer.h"

#include "screenshots/ScreenshotCaptureDetector.h"
#include "settings/CocoaError.h"
#include "settings/FolderPath.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace tembra {

namespace {

QString sentence(const char *text, const QString &path) {
    return QCoreApplication::translate("DesktopScreenshotOrganizer", text).arg(path);
}

// The name itself, then with a counter from 2 on.
QString candidate(const QDir &folder, const QString &name, int number) {
    if (number == 1)
        return folder.filePath(name);
    const qsizetype dot = name.lastIndexOf(u'.');
    const QString base = dot > 0 ? name.left(dot) : name;
    const QString extension = dot > 0 ? name.mid(dot) : QString();
    return folder.filePath(QStringLiteral("%1 (%2)%3").arg(base).arg(number).arg(extension));
}

// A file that comes to another volume is a copy, made now and without a marker.
void keepDateAndMarker(const QString &path, const QDateTime &modifiedAt,
                       const ScreenshotCaptureDetector &detector) {
    QFile file(path);
    if (QFileInfo(path).lastModified() != modifiedAt && file.open(QIODevice::ReadOnly))
        file.setFileTime(modifiedAt, QFileDevice::FileModificationTime);
    file.close();
    if (!detector.isCapture(path))
        detector.markAsCapture(path);
}

// Renaming refuses a name that is taken, also one taken since it was looked at.
bool moveInto(const QDir &folder, const QFileInfo &file, const ScreenshotCaptureDetector &detector) {
    const QDateTime modifiedAt = file.lastModified();
    for (int number = 1;; ++number) {
        const QString target = candidate(folder, file.fileName(), number);
        if (QFileInfo::exists(target) || QFileInfo(target).isSymLink())
            continue;
        if (QFile::rename(file.filePath(), target)) {
            keepDateAndMarker(target, modifiedAt, detector);
            return true;
        }
        if (!QFileInfo::exists(target))
            return false;
    }
}

// In the folder itself; recordings stay where they are.
QFileInfoList screenshotsIn(const QString &folder, const ScreenshotCaptureDetector &detector,
                            const QString &customPrefix) {
    QFileInfoList files = QDir(folder).entryInfoList(QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    files.removeIf([&](const QFileInfo &file) {
        return detector.isVideoName(file.fileName()) || !detector.isCapture(file.filePath(), customPrefix);
    });
    return files;
}

} // namespace

Result<void> DesktopScreenshotOrganizer::createFolder(const QString &folder) {
    const QFileInfo info(folder);
    if (info.isDir() && !info.isSymLink())
        return {};
    if (info.exists() || info.isSymLink())
        return cocoaFailure(CocoaError::fileWriteFileExists,
                            sentence(QT_TRANSLATE_NOOP("DesktopScreenshotOrganizer",
                                                       "“%1” is there already and is no folder."),
                                     folder));
    if (QDir().mkpath(folder))
        return {};
    return cocoaFailure(
        CocoaError::fileWriteNoPermission,
        sentence(QT_TRANSLATE_NOOP("DesktopScreenshotOrganizer", "The folder “%1” cannot be made."), folder));
}

int DesktopScreenshotOrganizer::countScreenshots(const QString &folder,
                                                 const ScreenshotCaptureDetector &detector,
                                                 const QString &customPrefix) {
    return static_cast<int>(screenshotsIn(folder, detector, customPrefix).size());
}

Result<DesktopScreenshotOrganizer::Report>
DesktopScreenshotOrganizer::moveScreenshots(const QString &from, const QString &to,
                                            const ScreenshotCaptureDetector &detector,
                                            const QString &customPrefix) {
    const QDir source(from);
    if (!source.exists() || !QFileInfo(from).isReadable())
        return cocoaFailure(
            CocoaError::fileReadNoPermission,
            sentence(QT_TRANSLATE_NOOP("DesktopScreenshotOrganizer", "The folder “%1” cannot be read."),
                     from));
    Report report;
    if (isSameFolder(from, to))
        return report;
    const QFileInfoList screenshots = screenshotsIn(from, detector, customPrefix);
    for (const QFileInfo &file : screenshots)
        ++(moveInto(QDir(to), file, detector) ? report.moved : report.failed);
    return report;
}

} // namespace tembra
