#pragma once

#include "platform/InputMonitor.h"

#include <vector>

namespace tembra {

// Input that the test makes.
class FakeInputMonitor final : public InputMonitor {
public:
    [[nodiscard]] std::unique_ptr<Observation> observe(std::function<void(const Event &)> onEvent) override {
        m_onEvent = std::move(onEvent);
        return std::make_unique<Handle>(*this);
    }
    [[nodiscard]] bool isForeignDragOffered() const override { return isDragOffered; }
    [[nodiscard]] ScreenPoint pointer() const override { return pointerPoint; }

    [[nodiscard]] bool isObserved() const { return m_onEvent != nullptr; }
    void send(Kind kind, ScreenPoint point, bool local = false) {
        pointerPoint = point;
        if (m_onEvent)
            m_onEvent({kind, point, local});
    }

    ScreenPoint pointerPoint;
    bool isDragOffered = false;

private:
    class Handle final : public Observation {
    public:
        explicit Handle(FakeInputMonitor &monitor) : m_monitor(monitor) {}
        ~Handle() override { m_monitor.m_onEvent = nullptr; }

    private:
        FakeInputMonitor &m_monitor;
    };

    std::function<void(const Event &)> m_onEvent;
};

} // namespace tembra
