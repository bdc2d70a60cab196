#pragma once

#include "editor/model/ScreenshotEditLoaded.h"
#include "platform/FileCoordinator.h"
#include "platform/FileFacts.h"
#include "platform/FileVersion.h"

#include <QString>

#include <optional>

namespace tembra {

// What became of a document's file. A value.
struct EditorFileCheck {
    enum class Finding {
        // The version that was looked at before.
        asSeen,
        asSaved,
        changed,
        gone,
        // It cannot be read now.
        unknown,
    };

    Finding finding = Finding::unknown;
    // Where the file is: where it was, or where it was moved.
    QString path;
    std::optional<FileVersion> version;

    // Reads the file when its version is not `seen`. Any thread but the main one.
    [[nodiscard]] static EditorFileCheck of(const ScreenshotEditLoaded &loaded,
                                            const std::optional<FileVersion> &seen,
                                            const FileFactsReader &files, const FileCoordinator &coordinator);
    [[nodiscard]] static FileVersion versionOf(const FileFacts &facts);
};

} // namespace tembra
