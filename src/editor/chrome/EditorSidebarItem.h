#pragma once

#include <QString>

namespace tembra {

// A screenshot in the sidebar. A value.
struct EditorSidebarItem {
    QString path;
    QString name;
    // Changes with the content: a new one asks for a new picture.
    QString revision;
    // Carries edits that were saved.
    bool isEdited = false;
    // Carries edits that are not saved yet.
    bool isUnsaved = false;

    bool operator==(const EditorSidebarItem &) const = default;
};

} // namespace tembra
