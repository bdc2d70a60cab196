#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QRegion;
class QWidget;
QT_END_NAMESPACE

namespace tembra {

// What it takes on this platform to keep a window at the top edge of a screen, over everything, on every
// virtual desktop, without taking part in window management. Main thread.
class PanelWindows {
public:
    virtual ~PanelWindows() = default;
    // Before the widget is shown for the first time; afterwards its window exists, unmapped.
    virtual void prepare(QWidget &panel) = 0;
    // Whether the desktop really shows it, somewhere.
    [[nodiscard]] virtual bool isShown(const QWidget &panel) const = 0;
    // The part of the panel, in its own points, that takes the pointer; elsewhere clicks reach what lies
    // below it.
    virtual void setInputRegion(QWidget &panel, const QRegion &region) = 0;
    // Gives the keyboard to the panel although no window manager looks after it, remembering who had it; the
    // second gives it back if the panel still has it.
    virtual void takeKeyboardFocus(QWidget &panel) = 0;
    virtual void returnKeyboardFocus(QWidget &panel) = 0;
};

} // namespace tembra
