#pragma once

#include "platform/PanelWindows.h"
#include "platform/linux/desktop/WaylandLayers.h"

#include <QObject>
#include <QPointer>

namespace tembra {

// Panels as surfaces over all windows. The compositor decides who has the keyboard; a panel may ask for it.
class WaylandPanelWindows final : public PanelWindows {
public:
    explicit WaylandPanelWindows(std::shared_ptr<WaylandLayers> layers);

    void prepare(QWidget &panel) override;
    [[nodiscard]] bool isShown(const QWidget &panel) const override;
    void setInputRegion(QWidget &panel, const QRegion &region) override;
    void takeKeyboardFocus(QWidget &panel) override;
    void returnKeyboardFocus(QWidget &panel) override;

private:
    const std::shared_ptr<WaylandLayers> m_layers;
    // The panel that asked for the keyboard last.
    QPointer<QWindow> m_taker;
    QObject m_context;
};

} // namespace tembra
