#include "editor/chrome/EditorControlRow.h"

#include "controls/ControlPainting.h"
#include "controls/Theme.h"
#include "editor/chrome/AccessibleEditorChrome.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace tembra {

namespace {

constexpr int separatorGap = (EditorControlRow::separatorWidth - 1) / 2;
constexpr int separatorHeight = 26;
constexpr QMargins ring{ringMargin, ringMargin, ringMargin, ringMargin};

} // namespace

EditorControlRow::EditorControlRow(QWidget *parent) : QWidget(parent) {
    installAccessibleEditorChrome();
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void EditorControlRow::add(QWidget *control, int gap) {
    control->setParent(this);
    m_items.push_back({control, gap});
}

void EditorControlRow::addSeparator() {
    m_items.push_back({nullptr, separatorGap});
}

// From the left edge on, all at the top.
std::vector<EditorControlRow::Place> EditorControlRow::places() const {
    std::vector<Place> result;
    int x = 0;
    bool isSeparatorDue = false;
    for (const auto &[control, gap] : m_items) {
        if (!control) {
            isSeparatorDue = !result.empty();
            continue;
        }
        if (control->isHidden())
            continue;
        if (isSeparatorDue) {
            result.push_back({nullptr, {x + separatorGap, 0, 1, separatorHeight}});
            x += separatorGap + 1 + separatorGap;
        } else if (!result.empty()) {
            x += gap;
        }
        isSeparatorDue = false;
        result.push_back(
            {control, QRect({x, 0}, control->sizeHint().boundedTo(control->maximumSize()).shrunkBy(ring))});
        x += result.back().body.width();
    }
    return result;
}

QSize EditorControlRow::bodySize() const {
    QRect bounds;
    for (const Place &place : places())
        bounds |= place.body;
    return bounds.size();
}

QSize EditorControlRow::sizeHint() const {
    return bodySize().grownBy(ring);
}

void EditorControlRow::layOut() {
    m_separators.clear();
    for (const auto &[control, body] : places()) {
        QRect place = body.translated(ringMargin, (height() - body.height()) / 2);
        place = QStyle::visualRect(layoutDirection(), rect(), place);
        if (control)
            control->setGeometry(place.marginsAdded(ring));
        else
            m_separators.push_back(place);
    }
    update();
}

void EditorControlRow::resizeEvent(QResizeEvent *) {
    layOut();
}

void EditorControlRow::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    for (const QRect &separator : m_separators)
        painter.fillRect(separator, Theme::of(*this).dockSeparator);
}

} // namespace tembra
