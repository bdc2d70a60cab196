#pragma once

#include "shelf/ShelfDisplay.h"
#include "shelf/ShelfPresentation.h"
#include "shelf/ShelfServices.h"
#include "shelf/SpringMotion.h"

#include <QVariantAnimation>

#include <functional>
#include <memory>

QT_BEGIN_NAMESPACE
class QKeyEvent;
class QWidget;
QT_END_NAMESPACE

namespace tembra {

class ShelfPanel;
class ShelfView;

// The shelf on one display: the hot zone, and the panel, which is made when it is first needed. Opening and
// closing is one motion that can turn round at any moment. Main thread; owned by ShelfSurfaces.
class ShelfDisplayWindow {
public:
    ShelfDisplayWindow(const ShelfDisplay &display, const ShelfServices &services);
    ~ShelfDisplayWindow();
    ShelfDisplayWindow(const ShelfDisplayWindow &) = delete;
    ShelfDisplayWindow &operator=(const ShelfDisplayWindow &) = delete;

    // The pointer crossed a boundary of the panel or of the hot zone.
    std::function<void()> onPointerActivity;
    std::function<void()> onActivationPressed;
    std::function<void()> onEscape;
    std::function<bool(const QKeyEvent &)> onKey;

    void setDisplay(const ShelfDisplay &display);
    [[nodiscard]] const ShelfDisplay &display() const { return m_display; }

    // Shows the content in this window from now on; it is not owned.
    void setContent(QWidget &content);
    // `isAnimated` false goes there at once.
    void present(const ShelfPresentation &presentation, bool isAnimated = true);
    void takeKeyboardFocus();
    [[nodiscard]] bool hasKeyboardFocus() const;
    // After a compositor came or went.
    void compositingChanged();

    // Screen points. What can be seen of the panel now, and the hot zone while nothing can be seen.
    [[nodiscard]] ScreenRect visiblePanel() const;
    // Where the pointer keeps the panel open: the panel as it will be when its motion has ended.
    [[nodiscard]] ScreenRect interactionPanel() const;
    [[nodiscard]] ScreenRect panelWindow() const;

private:
    void makePanel();
    // The content is shown here and not in the window of another display.
    [[nodiscard]] bool hasContent() const;
    void placePanel();
    void placeBody();
    void updateInputRegion();
    // What is presented, within the display.
    [[nodiscard]] QSize presentedSize() const;
    void settle();
    [[nodiscard]] QSizeF restingSize() const;
    [[nodiscard]] QSizeF bodySize() const;
    [[nodiscard]] SpringMotion::Time elapsed() const;
    [[nodiscard]] ScreenRect hangingFromEdge(const QSizeF &size) const;

    ShelfServices m_services;
    ShelfDisplay m_display;
    ShelfPresentation m_presentation;
    std::unique_ptr<HotZones::Zone> m_zone;
    // Around a panel whose window ends where the panel does.
    std::unique_ptr<HotZones::Zone> m_margin;
    std::unique_ptr<ShelfPanel> m_panel;
    ShelfView *m_root = nullptr;
    QWidget *m_viewport = nullptr;
    QWidget *m_content = nullptr;
    SpringMotion m_width;
    SpringMotion m_height;
    QVariantAnimation m_animation;
    // How far the motion was when the animation began.
    SpringMotion::Time m_headStart{};
    // Asking costs a round trip to the display: not for each frame.
    bool m_isComposited = true;
};

} // namespace tembra
