#include "shelf/ClipboardDropArea.h"

#include "controls/DropZoneAppearance.h"

#include <QPainter>

namespace tembra {

ClipboardDropArea::ClipboardDropArea(QWidget *parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAccessibleName(tr("Drop files here or ⌘V to paste"));
}

void ClipboardDropArea::setHighlighted(bool highlighted) {
    m_highlighted = highlighted;
    update();
}

void ClipboardDropArea::setOverlay(bool overlay) {
    m_overlay = overlay;
    update();
}

void ClipboardDropArea::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    DropZoneAppearance::draw(painter, rect(), m_highlighted, m_overlay, accessibleName());
}

} // namespace tembra
