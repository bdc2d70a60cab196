#pragma once

#include "base/Clocks.h"
#include "platform/ScreenGeometry.h"
#include "shelf/ScreenshotFolderState.h"
#include "shelf/ShelfTab.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace tembra {

// What the shelf shows and knows, as one value, for scripts and for the tests that drive the program.
struct ShelfStatus {
    struct Section {
        QString title;
        int count = 0;
    };
    struct Capture {
        QString path;
        Instant at{};
    };

    bool expanded = false;
    ShelfTab tab = ShelfTab::screenshots;
    // Name of the display that has the shelf; empty when it is closed.
    QString display;
    // The visible panel, or the hot zone while closed.
    ScreenRect frame;

    std::optional<QString> folder;
    ScreenshotFolderState folderState = ScreenshotFolderState::none;
    int screenshotCount = 0;
    int pinnedCount = 0;
    // The paths of all, in the order in which they are shown.
    QStringList screenshots;
    QStringList selected;
    std::vector<Section> sections;

    bool showingNotification = false;
    QString notificationText;
    // The line below the text.
    QString notificationDetail;
    int notificationCount = 0;

    bool isShortcutEnabled = false;
    QString shortcutTitle;
    // Why it does not work.
    std::optional<QString> shortcutError;

    std::optional<Capture> lastCapture;

    struct TrayEntry {
        QString path;
        bool isAvailable = true;
    };
    std::vector<TrayEntry> tray;
    QString trayStatus;
    // Of the text recognition: "idle", "loading", "result" or "error", and what is shown.
    QString recognitionPhase;
    QString recognitionText;
    bool isRecognitionExpanded = false;
    // 0 is never.
    int autoCleanDays = 0;
    int autoCleanReview = 0;
    std::optional<std::chrono::nanoseconds> nextAutoCleanCheck;
    // Names of what can be undone and redone, newest first.
    QStringList undo;
    QStringList redo;
};

} // namespace tembra
