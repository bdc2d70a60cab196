#include "editor/chrome/EditorSwatches.h"

#include "controls/TembraToolTip.h"
#include "editor/chrome/EditorPalette.h"
#include "editor/chrome/EditorSwatch.h"
#include "editor/chrome/RovingFocus.h"

namespace tembra {

namespace {

constexpr int gap = 2;

} // namespace

EditorSwatches::EditorSwatches(QWidget *parent)
    : EditorControlRow(parent),
      m_custom(new EditorSwatch(tr("Custom color…"), this)),
      m_focus(new RovingFocus(this)) {
    setAccessibleName(tr("Color"));
    int digit = 1;
    for (const auto &[name, color] : editorPalette()) {
        auto *swatch = new EditorSwatch(color.toColor(), name, this);
        TembraToolTip::set(*swatch, tr("%1 (%2)").arg(name).arg(digit++));
        connect(swatch, &QAbstractButton::clicked, this, [this, color = color] {
            setColor(m_color);
            Q_EMIT chosen(color);
        });
        m_swatches.emplace_back(color, swatch);
        m_focus->add(swatch);
        add(swatch, gap);
    }
    TembraToolTip::set(*m_custom, tr("Custom color… (%1)").arg(digit));
    connect(m_custom, &QAbstractButton::clicked, this, [this] {
        setColor(m_color);
        Q_EMIT customRequested();
    });
    m_focus->add(m_custom);
    add(m_custom, gap);
    // As it is read.
    m_custom->raise();
}

void EditorSwatches::setColor(const EditorColor &color) {
    m_color = color;
    EditorSwatch *current = m_custom;
    const QRgb wanted = color.toColor().rgba();
    for (const auto &[offered, swatch] : m_swatches) {
        if (offered.toColor().rgba() == wanted)
            current = swatch;
    }
    m_custom->setCustomColor(current == m_custom ? std::optional(color.toColor()) : std::nullopt);
    current->setChecked(true);
    m_focus->setEntrance(current);
}

} // namespace tembra
