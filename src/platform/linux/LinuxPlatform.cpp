#include "platform/Platform.h"
#include "platform/linux/AutostartEntry.h"
#include "platform/linux/DBusSingleInstance.h"
#include "platform/linux/FreedesktopThumbnails.h"
#include "platform/linux/InotifyFolderEvents.h"
#include "platform/linux/JsonUserDefaults.h"
#include "platform/linux/LinuxBookmarks.h"
#include "platform/linux/LinuxCaptureMarkers.h"
#include "platform/linux/LinuxFileCoordinator.h"
#include "platform/linux/LinuxFileFacts.h"
#include "platform/linux/LinuxFileReferences.h"
#include "platform/linux/LinuxFolderFiles.h"
#include "platform/linux/LinuxMountedVolumes.h"
#include "platform/linux/LinuxPictureDecoder.h"
#include "platform/linux/LinuxStandardFolders.h"
#include "platform/linux/LinuxTrash.h"
#include "platform/linux/ThumbnailCacheFolder.h"
#include "platform/linux/UserVolumes.h"
#include "platform/linux/desktop/DesktopServices.h"
#include "platform/linux/desktop/WindowingChoice.h"
#include "platform/linux/recognition/TesseractOCRRecognizer.h"
#include "platform/linux/tools/ScreenshotTool.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <xcb/xcb.h>

#include <malloc.h>

namespace tembra {

namespace {

constexpr const char *platformVariable = "QT_QPA_PLATFORM";
constexpr const char *placingVariables[]{"QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT",
                                         "QT_WAYLAND_DISABLE_FIXED_POSITIONS"};
// By us and not by the user.
bool isPlatformChosen = false;

bool canReachXServer() {
    const std::unique_ptr<xcb_connection_t, void (*)(xcb_connection_t *)> connection(
        xcb_connect(nullptr, nullptr), xcb_disconnect);
    return xcb_connection_has_error(connection.get()) == 0;
}

} // namespace

Platform makeHeadlessPlatform(Scheduler &scheduler) {
    Platform platform;
    platform.folders = linuxStandardFolders();
    platform.defaults =
        std::make_unique<JsonUserDefaults>(platform.folders.configuration + QStringLiteral("/settings.json"));
    platform.screenCapturePreferences = [folders = platform.folders] {
        return makeScreenCapturePreferences(folders);
    };
    auto facts = std::make_unique<LinuxFileFactsReader>();
    platform.folderFiles = std::make_unique<LinuxFolderFiles>(*facts);
    platform.fileCoordinator = std::make_unique<LinuxFileCoordinator>();
    platform.fileReferences = std::make_unique<LinuxFileReferences>(*facts);
    platform.volumes = std::make_unique<LinuxMountedVolumes>(*facts);
    platform.bookmarks = std::make_unique<LinuxBookmarks>(*facts, platform.folders);
    platform.folderEvents = std::make_unique<InotifyFolderEvents>(*facts, scheduler);
    platform.captureMarkers = std::make_unique<LinuxCaptureMarkers>();
    platform.trash = std::make_unique<LinuxTrash>(*facts, platform.folders.trash.first());
    platform.pictureDecoder = std::make_unique<LinuxPictureDecoder>();
    platform.thumbnailCache = std::make_unique<ThumbnailCacheFolder>(ThumbnailCacheFolder::userRoot());
    platform.textRecognizer =
        std::make_unique<TesseractOCRRecognizer>(TesseractOCRRecognizer::installedWorker());
    platform.loginItem = AutostartEntry::ofUser().service();
    platform.userVolumes = userVolumes;
    platform.fileFacts = std::move(facts);
    return platform;
}

Platform makePlatform(Scheduler &scheduler) {
    Platform platform = makeHeadlessPlatform(scheduler);
    DesktopServices desktop = makeDesktopServices(scheduler);
    platform.displays = std::move(desktop.displays);
    platform.workspace = std::move(desktop.workspace);
    platform.inputMonitor = std::move(desktop.inputMonitor);
    platform.panelWindows = std::move(desktop.panelWindows);
    platform.hotZones = std::move(desktop.hotZones);
    platform.hotKeys = std::move(desktop.hotKeys);
    platform.pasteboard = std::move(desktop.pasteboard);
    platform.filePromises = std::move(desktop.filePromises);
    platform.sounds = std::move(desktop.sounds);
    platform.desktopFindings = std::move(desktop.findings);
    platform.isMotionReduced = std::move(desktop.isMotionReduced);
    platform.thumbnails =
        std::make_unique<FreedesktopThumbnails>(scheduler, FreedesktopThumbnails::userLocations());
    return platform;
}

std::unique_ptr<SingleInstance> makeSingleInstance() {
    return std::make_unique<DBusSingleInstance>();
}

Result<void> preparePlatformEnvironment() {
    const WindowingChoice::Facts session = WindowingChoice::ofSession();
    if (!session.isChosenByUser && !session.hasCompositor && !canReachXServer())
        return failure(
            {QStringLiteral("Tembra.Platform"),
             1,
             QCoreApplication::translate(
                 "Platform", "Tembra needs a desktop: neither DISPLAY nor WAYLAND_DISPLAY leads to one."),
             {}});
    const WindowingChoice choice = WindowingChoice::of(session);
    if (!choice.platform.isEmpty()) {
        qputenv(platformVariable, choice.platform);
        isPlatformChosen = true;
    }
    // Qt leaves to us the windows that we place ourselves, and they stay where we put them.
    for (const char *variable : placingVariables) {
        if (choice.placesWindows)
            qputenv(variable, "1");
    }
    if (!choice.note.isEmpty())
        qInfo("%s", choice.note.constData());
    return {};
}

void restorePlatformEnvironment() {
    if (std::exchange(isPlatformChosen, false))
        qunsetenv(platformVariable);
}

void giveBackFreedMemory() {
#ifdef __GLIBC__
    ::malloc_trim(0);
#endif
}

// Qt asks for these whenever it makes a window, so they stay in our own.
QProcessEnvironment environmentForPrograms() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *variable : placingVariables)
        environment.remove(QString::fromLatin1(variable));
    return environment;
}

// Packages lay a marker beside the program.
bool isPackageManaged() {
    const QDir programs(QCoreApplication::applicationDirPath());
    return QFileInfo::exists(programs.filePath(QStringLiteral("../share/tembra/package-managed")));
}

QString platformWordingCatalogue(const QString &language) {
    return QStringLiteral("tembra_linux_") + language;
}

} // namespace tembra
