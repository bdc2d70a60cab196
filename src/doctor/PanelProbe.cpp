#include "doctor/PanelProbe.h"

#include <QWidget>

namespace tembra {

namespace {

constexpr std::chrono::milliseconds timeToAppear{500};
constexpr QSize panelSize{2, 2};

} // namespace

PanelProbe::PanelProbe(PanelWindows &panels, const Displays &displays, Scheduler &scheduler)
    : m_panels(panels), m_displays(displays), m_scheduler(scheduler) {}

PanelProbe::~PanelProbe() = default;

void PanelProbe::cancel() {
    m_answer.cancel();
    m_panel.reset();
}

void PanelProbe::start(std::function<void(bool)> told) {
    const std::vector<DisplayFacts> displays = m_displays.connected();
    if (displays.empty()) {
        m_answer = m_scheduler.schedule({}, [told = std::move(told)] { told(false); });
        return;
    }
    const ScreenRect &screen = displays.front().frame;
    const QPoint place(qRound(screen.x + screen.width / 2), qRound(screen.y));
    m_panel = std::make_unique<QWidget>();
    m_panel->setGeometry(QRect(place, panelSize));
    m_panels.prepare(*m_panel);
    m_panels.setInputRegion(*m_panel, QRegion());
    m_panel->show();
    m_answer = m_scheduler.schedule(timeToAppear, [this, place, told = std::move(told)] {
        const bool isInPlace = m_panels.isShown(*m_panel) && m_panel->geometry().topLeft() == place;
        m_panel.reset();
        told(isInPlace);
    });
}

} // namespace tembra
