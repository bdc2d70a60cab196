#pragma once

#include <QColor>

class QWidget;

namespace tembra {

// Which colours the controls in a window take: the shelf's, which are dark whatever the desktop is; the
// desktop's preference; or one of the two by name.
enum class Appearance { shelf, desktop, light, dark };

// The colours of controls and of the windows around them, one set for each appearance. Main thread.
struct Theme {
    QColor window, sidebar, header, group, separator;
    QColor text, secondaryText;
    QColor control, controlHovered, controlPressed, controlBorder;
    QColor primary, primaryHovered, primaryPressed, onPrimary;
    QColor accent, accentHovered, accentPressed, onAccent;
    QColor field, fieldBorder, invalid;
    QColor track, trackHovered, knob;
    QColor segments, segmentCurrent;
    QColor toolTip, toolTipText;
    QColor link, focusRing, selection;
    QColor popup, popupBorder;
    QColor canvas;
    QColor scroller, scrollerActive;
    // What floats over a canvas and what lies beside it.
    QColor dock, dockBorder, dockSeparator, dockIcon;
    QColor edge, unsaved;

    static constexpr qreal disabledOpacity = 0.4;

    // The colours for a control: those of the nearest widget above it that was given an appearance, and the
    // shelf's where none was.
    [[nodiscard]] static const Theme &of(const QWidget &widget);
    // Gives the widget and all in it an appearance: for our controls, and as a palette for plain widgets
    // such as labels. Where it is the desktop's, it follows the desktop.
    static void setAppearance(QWidget &root, Appearance appearance);
};

} // namespace tembra
