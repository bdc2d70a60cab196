#pragma once

#include "platform/PanelWindows.h"

namespace tembra {

// Panels as far as Qt alone can make them, for windowing systems that we do not speak to ourselves.
class QtPanelWindows final : public PanelWindows {
public:
    static void applyPanelFlags(QWidget &panel);
    // Whether the windowing system has it on the screen.
    [[nodiscard]] static bool isExposed(const QWidget &panel);

    void prepare(QWidget &panel) override;
    [[nodiscard]] bool isShown(const QWidget &panel) const override;
    void setInputRegion(QWidget &panel, const QRegion &region) override;
    void takeKeyboardFocus(QWidget &panel) override;
    void returnKeyboardFocus(QWidget &panel) override;
};

} // namespace tembra
