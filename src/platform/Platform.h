#pragma once

#include "base/Scheduler.h"
#include "platform/Bookmarks.h"
#include "platform/CaptureMarkers.h"
#include "platform/DesktopFindings.h"
#include "platform/Displays.h"
#include "platform/FileCoordinator.h"
#include "platform/FileFacts.h"
#include "platform/FilePromises.h"
#include "platform/FileReferences.h"
#include "platform/FolderEvents.h"
#include "platform/FolderFiles.h"
#include "platform/HotKeys.h"
#include "platform/HotZones.h"
#include "platform/InputMonitor.h"
#include "platform/LoginItemService.h"
#include "platform/PanelWindows.h"
#include "platform/Pasteboard.h"
#include "platform/PictureDecoder.h"
#include "platform/ScreenCapturePreferences.h"
#include "platform/SingleInstance.h"
#include "platform/Sounds.h"
#include "platform/StandardFolders.h"
#include "platform/TextRecognizer.h"
#include "platform/ThumbnailCache.h"
#include "platform/Thumbnails.h"
#include "platform/Trash.h"
#include "platform/UserDefaults.h"
#include "platform/Volumes.h"
#include "platform/Workspace.h"

#include <QProcessEnvironment>

#include <functional>
#include <memory>

namespace tembra {

// Every service of the platform, made once by the composition root, which hands each part the two or three it
// needs.
struct Platform {
    StandardFolders folders;
    std::unique_ptr<UserDefaults> defaults;
    // A new reader of the screenshot tool's preferences: each thread uses its own.
    std::function<std::unique_ptr<ScreenCapturePreferences>()> screenCapturePreferences;
    std::unique_ptr<FileFactsReader> fileFacts;
    std::unique_ptr<FolderFiles> folderFiles;
    std::unique_ptr<FileCoordinator> fileCoordinator;
    std::unique_ptr<FileReferences> fileReferences;
    std::unique_ptr<Volumes> volumes;
    std::unique_ptr<Bookmarks> bookmarks;
    std::unique_ptr<FolderEvents> folderEvents;
    std::unique_ptr<CaptureMarkers> captureMarkers;
    std::unique_ptr<Trash> trash;
    std::unique_ptr<PictureDecoder> pictureDecoder;
    std::unique_ptr<ThumbnailCache> thumbnailCache;
    std::unique_ptr<TextRecognizer> textRecognizer;
    LoginItemService loginItem;
    // Where volumes are mounted on which the user may keep files; any thread.
    std::function<QStringList()> userVolumes;
    // Whether the desktop asks for things to change without moving, as it is now. Main thread.
    std::function<bool()> isMotionReduced;
    // The services below need a display and are absent in commands that run without one.
    std::unique_ptr<Displays> displays;
    std::unique_ptr<Workspace> workspace;
    std::unique_ptr<InputMonitor> inputMonitor;
    std::unique_ptr<PanelWindows> panelWindows;
    std::unique_ptr<HotZones> hotZones;
    std::unique_ptr<HotKeys> hotKeys;
    std::unique_ptr<Thumbnails> thumbnails;
    std::unique_ptr<Pasteboard> pasteboard;
    std::unique_ptr<FilePromises> filePromises;
    std::unique_ptr<Sounds> sounds;
    // What this desktop lets the program do; main thread.
    std::function<DesktopFindings()> desktopFindings;
};

// Files, settings and the screenshot tool: enough for commands without windows. The scheduler must outlive
// it.
[[nodiscard]] Platform makeHeadlessPlatform(Scheduler &scheduler);
// Everything. Needs the application object.
[[nodiscard]] Platform makePlatform(Scheduler &scheduler);

// Needs an application object, not the rest of the platform.
[[nodiscard]] std::unique_ptr<SingleInstance> makeSingleInstance();
// Before the application object is made: what its windows need of the environment. Error: there is no
// display, in the user's words.
[[nodiscard]] Result<void> preparePlatformEnvironment();
// When it has been made: programs that are started get the environment of before.
void restorePlatformEnvironment();
// Memory that was freed goes from the allocator back to the system. Takes a few milliseconds.
void giveBackFreedMemory();
// For programs that are started, without what only this one needs.
[[nodiscard]] QProcessEnvironment environmentForPrograms();
// Whether the system's packages installed the program, and so update it. Needs an application object.
[[nodiscard]] bool isPackageManaged();
// The name of the translation catalogue that rewords, in that language ("en"), texts which name things of
// another platform.
[[nodiscard]] QString platformWordingCatalogue(const QString &language);

} // namespace tembra
