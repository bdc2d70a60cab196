#include "app/ScanCommand.h"

#include "app/ScanReport.h"
#include "base/QtScheduler.h"
#include "platform/Platform.h"
#include "screenshots/ScreenshotCaptureDetector.h"
#include "screenshots/ScreenshotFolderTraversal.h"

#include <QCoreApplication>
#include <QDir>

namespace tembra {

Result<QString> scanFolder(const QString &folder, bool json) {
    QtScheduler scheduler;
    const Platform platform = makeHeadlessPlatform(scheduler);
    const QString path = QDir::cleanPath(QDir(folder).absolutePath());
    const ScreenshotCaptureDetector detector(*platform.captureMarkers, *platform.folderFiles);
    const ScreenshotFolderTraversal traversal(platform.folders, *platform.fileFacts);
    const QString customPrefix = platform.screenCapturePreferences()->name().value_or(QString());
    const auto report = ScanReport::of(path, traversal.includesSubfolders(path), *platform.folderFiles,
                                       detector, customPrefix, systemNow());
    if (!report)
        return failure({QStringLiteral("Tembra.ScanCommand"),
                        1,
                        QCoreApplication::translate("ScanCommand", "“%1” cannot be read: %2")
                            .arg(path, report.error().message),
                        {}});
    return json ? QString::fromUtf8(report->toJson()) : report->toText();
}

} // namespace tembra
