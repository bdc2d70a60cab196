#pragma once

#include "editor/chrome/EditorControlRow.h"
#include "editor/model/EditorTool.h"

namespace tembra {

class EditorIconButton;
class RovingFocus;

// The tools to choose from.
class EditorToolRow final : public EditorControlRow {
    Q_OBJECT

public:
    explicit EditorToolRow(QWidget *parent = nullptr);

    void setTool(EditorTool tool);

Q_SIGNALS:
    void chosen(tembra::EditorTool tool);
    // The wheel was turned over the tool.
    void scrolled(tembra::EditorTool tool, int steps);

private:
    EditorTool m_tool = EditorTool::select;
    std::vector<EditorIconButton *> m_buttons;
    RovingFocus *m_focus;
};

} // namespace tembra
