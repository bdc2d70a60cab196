#pragma once

#include "editor/documents/EditorDocumentId.h"
#include "editor/documents/EditorWritten.h"
#include "editor/model/ScreenshotEditDocument.h"
#include "editor/model/ScreenshotEdits.h"
#include "platform/FileVersion.h"

#include <QImage>
#include <QString>

#include <optional>

namespace tembra {

// One open screenshot: its file, its edits and its pixels. Main thread; owned by EditorDocumentList.
struct EditorDocument {
    EditorDocument(EditorDocumentId id, const Shot &shot, const ScreenshotEditLoaded &loaded);

    const EditorDocumentId id;
    // As it was read or written last.
    ScreenshotEditLoaded loaded;
    ScreenshotEditDocument edits;
    // The original, upright: `loaded.preview` until it is there in its full size.
    QImage image;

    // What the file is now.
    enum class FileState { asSaved, changedOutside, gone };
    FileState fileState = FileState::asSaved;
    // The version that was found to be so. Nothing when it is to be looked at again.
    std::optional<FileVersion> seen;

    [[nodiscard]] Shot shot() const { return edits.residentImage.value_or(Shot()); }
    // Of the file, without its extension.
    [[nodiscard]] QString name() const;
    // With its dot; empty when there is none.
    [[nodiscard]] QString extension() const;
    [[nodiscard]] QString fileName() const { return name() + extension(); }
    [[nodiscard]] ScreenshotEdits currentEdits() const { return {edits.annotations(), edits.cropRect()}; }
    [[nodiscard]] bool hasFullImage() const { return image.size() == loaded.size; }

    // After a save or a rename.
    void renew(const EditorWritten &written);
    // Somebody moved the file there.
    void follow(const QString &path);
};

} // namespace tembra
