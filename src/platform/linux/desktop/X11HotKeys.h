#pragma once

#include "platform/HotKeys.h"
#include "platform/linux/desktop/X11Connection.h"

#include <vector>

namespace tembra {

// Keys that are grabbed on the root window, with every state of the locks (Caps Lock, Num Lock, Scroll Lock),
// so that no lock keeps them from working. What another program has is refused by the server at once.
class X11HotKeys final : public HotKeys {
public:
    explicit X11HotKeys(std::shared_ptr<X11Connection> connection);
    ~X11HotKeys() override;
    X11HotKeys(const X11HotKeys &) = delete;
    X11HotKeys &operator=(const X11HotKeys &) = delete;

    [[nodiscard]] bool areAvailable() const override { return true; }
    [[nodiscard]] Result<std::unique_ptr<Registration>> registerHotKey(const HotKey &key,
                                                                       Callbacks callbacks) override;
    [[nodiscard]] std::optional<std::uint32_t> virtualKeyCode(const QKeyEvent &event) const override;

private:
    class Grab;
    // The bits that modifiers have with the server; another keyboard may have others.
    struct Modifiers {
        std::uint16_t super = XCB_MOD_MASK_4;
        std::uint16_t alt = XCB_MOD_MASK_1;
        std::uint16_t numLock = XCB_MOD_MASK_2;
        std::uint16_t scrollLock = 0;

        [[nodiscard]] std::uint16_t locks() const {
            return static_cast<std::uint16_t>(XCB_MOD_MASK_LOCK | numLock | scrollLock);
        }
        bool operator==(const Modifiers &) const = default;
    };

    [[nodiscard]] Modifiers readModifiers() const;
    [[nodiscard]] bool isKeyboardChange(const xcb_generic_event_t &event) const;
    void receive(const xcb_generic_event_t &event);
    void receivePress(const xcb_key_press_event_t &event);
    void keyboardChanged();

    const std::shared_ptr<X11Connection> m_connection;
    // What the number of the keyboard extension's events is; 0 on a server without it.
    const std::uint8_t m_keyboardEvent;
    Modifiers m_modifiers;
    std::vector<Grab *> m_grabs;
    std::unique_ptr<X11Connection::Subscription> m_events;
};

} // namespace tembra
