#pragma once

#include "base/Clocks.h"
#include "base/Scheduler.h"
#include "base/SerialQueue.h"
#include "platform/Displays.h"
#include "platform/FileFacts.h"
#include "platform/HotKeys.h"
#include "platform/HotZones.h"
#include "platform/InputMonitor.h"
#include "platform/PanelWindows.h"
#include "platform/Pasteboard.h"
#include "platform/PictureDecoder.h"
#include "platform/Thumbnails.h"
#include "platform/Workspace.h"
#include "playback/RecordingPlayer.h"

#include <functional>
#include <memory>

namespace tembra {

class OCRRecognizing;

// What the shelf takes from the platform; everything outlives it.
struct ShelfServices {
    Scheduler &scheduler;
    UptimeClock uptime;
    WallClock now;
    Displays &displays;
    Workspace &workspace;
    InputMonitor &inputMonitor;
    PanelWindows &panelWindows;
    HotZones &hotZones;
    HotKeys &hotKeys;
    Pasteboard &pasteboard;
    Thumbnails &thumbnails;
    const FileFactsReader &files;
    const PictureDecoder &pictures;
    OCRRecognizing &recognizer;
    // Reads what the preview shows.
    SerialQueue &previewQueue;
    // Whether a file is a capture.
    std::function<bool(const QString &path)> isCapture;
    // Nothing where recordings cannot be played.
    std::function<std::unique_ptr<RecordingPlayer>()> makeRecordingPlayer = [] { return nullptr; };
};

} // namespace tembra
