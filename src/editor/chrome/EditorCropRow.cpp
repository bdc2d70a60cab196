#include "editor/chrome/EditorCropRow.h"

#include "controls/TembraButton.h"
#include "editor/chrome/EditorCropSize.h"

namespace tembra {

EditorCropRow::EditorCropRow(QWidget *parent) : EditorControlRow(parent), m_size(new EditorCropSize(this)) {
    using Kind = TembraButton::Kind;
    using Size = TembraButton::Size;
    auto *cancel = new TembraButton(Kind::plain, Size::bar, tr("Cancel"), this);
    auto *apply = new TembraButton(Kind::accent, Size::bar, tr("Apply"), this);
    for (QWidget *button : {cancel, apply})
        button->setFocusPolicy(Qt::TabFocus);
    connect(cancel, &QAbstractButton::clicked, this, &EditorCropRow::cancelled);
    connect(apply, &QAbstractButton::clicked, this, &EditorCropRow::applied);
    add(m_size, 0);
    add(cancel, 10);
    add(apply, 8);
}

void EditorCropRow::setCrop(QSize crop) {
    m_size->setCrop(crop);
}

} // namespace tembra
