#pragma once

#include <QRect>
#include <QString>
#include <QStringList>

namespace tembra {

// What the editor shows, as one value, for scripts and for the tests that drive the program.
struct EditorStatus {
    bool isOpen = false;
    // Of the screenshot that is shown; empty while none is.
    QString path;
    bool isDirty = false;
    // Of the screenshots with unsaved edits, this one's last.
    QStringList unsaved;
    // What Undo and Redo would undo and redo; empty for nothing.
    QString undoName;
    QString redoName;
    int annotationCount = 0;
    int selectedCount = 0;
    // By name: "select", "arrow", …
    QString tool;
    // The display's pixels for a pixel of the image, and where the image is shown: of its top left corner
    // from that of the window, in points.
    double zoom = 1;
    double imageX = 0;
    double imageY = 0;
    // What the banner says; empty for nothing.
    QString message;
    // Of the window's content, in screen points.
    QRect frame;
    // Text is typed on the canvas.
    bool isTyping = false;
    // "idle", "loading", "ready" or "failed".
    QString words;
    int wordCount = 0;
    bool isBusy = false;
    // Every pixel of the image is there.
    bool hasFullImage = false;
};

} // namespace tembra
