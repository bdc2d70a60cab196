#pragma once

#include "platform/InputMonitor.h"
#include "platform/linux/desktop/MotionThrottle.h"
#include "platform/linux/desktop/X11Connection.h"

#include <vector>

namespace tembra {

// Input of the whole screen as raw events of the root window, which reach us whoever has the window below
// the pointer or has grabbed it. What nobody observes is not selected, so it does not wake the process.
class X11InputMonitor final : public InputMonitor {
public:
    X11InputMonitor(std::shared_ptr<X11Connection> connection, Scheduler &scheduler);
    ~X11InputMonitor() override;
    X11InputMonitor(const X11InputMonitor &) = delete;
    X11InputMonitor &operator=(const X11InputMonitor &) = delete;

    [[nodiscard]] std::unique_ptr<Observation> observe(std::function<void(const Event &)> onEvent) override;
    [[nodiscard]] bool isForeignDragOffered() const override;
    [[nodiscard]] ScreenPoint pointer() const override;

private:
    void updateSelection();
    void startWatchingButtons();
    void select(std::uint32_t mask);
    void receive(const xcb_generic_event_t &event);
    void receiveButton(std::uint32_t physicalButton, bool isDown);
    void receiveMotion();
    void readButtonOrder();
    void report(Kind kind);

    const std::shared_ptr<X11Connection> m_connection;
    const xcb_atom_t m_dragSelection;
    // The number of the input extension; 0 on a server without it.
    const std::uint8_t m_inputOpcode;
    std::uint32_t m_selected = 0;
    bool m_isLeftDown = false;
    bool m_isDragOffered = false;
    // What the user made of each button of the mouse, raw events know nothing about it.
    std::vector<std::uint8_t> m_buttonOrder;
    MotionThrottle m_throttle;
    std::unique_ptr<X11Connection::Subscription> m_events;
    std::unique_ptr<X11Connection::Subscription> m_dragWatch;
    Observers<Observation, const Event &> m_observers;
};

} // namespace tembra
