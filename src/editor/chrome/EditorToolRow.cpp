#include "editor/chrome/EditorToolRow.h"

#include "controls/TembraToolTip.h"
#include "editor/chrome/EditorIconButton.h"
#include "editor/chrome/EditorToolAppearance.h"
#include "editor/chrome/RovingFocus.h"

namespace tembra {

namespace {

constexpr int gap = 2;

} // namespace

EditorToolRow::EditorToolRow(QWidget *parent) : EditorControlRow(parent), m_focus(new RovingFocus(this)) {
    setAccessibleName(tr("Tools"));
    for (int index = 0; const std::optional<EditorTool> tool = editorTool(index); ++index) {
        const auto [name, letter, icon] = EditorToolAppearance::of(*tool);
        auto *button = new EditorIconButton(icon, EditorIconButton::Size::tool, name, this);
        TembraToolTip::set(*button, tr("%1 (%2)").arg(name, letter));
        button->setCheckable(true);
        button->setAutoExclusive(true);
        // What is chosen is shown when the tool is in use.
        connect(button, &QAbstractButton::clicked, this, [this, tool = *tool] {
            setTool(m_tool);
            Q_EMIT chosen(tool);
        });
        connect(button, &EditorIconButton::scrolled, this,
                [this, tool = *tool](int steps) { Q_EMIT scrolled(tool, steps); });
        m_buttons.push_back(button);
        m_focus->add(button);
        add(button, gap);
    }
    setTool(m_tool);
}

void EditorToolRow::setTool(EditorTool tool) {
    m_tool = tool;
    EditorIconButton *button = m_buttons[static_cast<size_t>(tool)];
    button->setChecked(true);
    m_focus->setEntrance(button);
}

} // namespace tembra
