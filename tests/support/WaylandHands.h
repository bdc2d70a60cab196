#pragma once

#include <QPoint>
#include <QSize>

#include <memory>

namespace tembra {

// A pointer and a keyboard of our own on the Wayland compositor of the environment, which has none otherwise.
// Points are those of the compositor's layout, which begins at its origin. Needs no application object.
class WaylandHands {
public:
    // `layout` is the size of all outputs together.
    explicit WaylandHands(QSize layout);
    ~WaylandHands();
    WaylandHands(const WaylandHands &) = delete;
    WaylandHands &operator=(const WaylandHands &) = delete;

    // False where the compositor lets nobody make such devices.
    [[nodiscard]] bool areReady() const;
    void setLayout(QSize layout);

    // Buttons and keys are those of the kernel (linux/input-event-codes.h).
    void moveTo(QPoint point);
    void setButton(std::uint32_t button, bool isDown);
    void click(QPoint point, std::uint32_t button);
    void press(std::uint32_t key);
    void pressWithControl(std::uint32_t key);

private:
    struct Devices;

    void setControl(bool isDown);

    const std::unique_ptr<Devices> m_devices;
    QSize m_layout;
};

} // namespace tembra
