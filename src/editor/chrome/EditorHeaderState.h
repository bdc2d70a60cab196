#pragma once

#include <QString>

namespace tembra {

// What the bar along the editor's top shows. A value.
struct EditorHeaderState {
    // Of the file, the extension without its dot.
    QString name;
    QString extension;
    bool isDirty = false;
    bool canUndo = false;
    QString undoName;
    bool canRedo = false;
    QString redoName;
    bool canSave = false;
    bool isSaving = false;
    // Without a screenshot there is nothing to do with it.
    bool hasScreenshot = true;

    bool operator==(const EditorHeaderState &) const = default;
};

} // namespace tembra
