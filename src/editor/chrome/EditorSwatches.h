#pragma once

#include "editor/chrome/EditorControlRow.h"
#include "editor/model/EditorColor.h"

namespace tembra {

class EditorSwatch;
class RovingFocus;

// The colours to choose from, and one's own.
class EditorSwatches final : public EditorControlRow {
    Q_OBJECT

public:
    explicit EditorSwatches(QWidget *parent = nullptr);

    void setColor(const EditorColor &color);

Q_SIGNALS:
    void chosen(const tembra::EditorColor &color);
    void customRequested();

private:
    EditorColor m_color;
    std::vector<std::pair<EditorColor, EditorSwatch *>> m_swatches;
    EditorSwatch *m_custom;
    RovingFocus *m_focus;
};

} // namespace tembra
