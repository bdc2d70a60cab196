#include "support/WaylandHands.h"

#include <QElapsedTimer>
#include <QTemporaryFile>

#include <string_view>
#include <wayland-client.h>

namespace tembra {

namespace {

constexpr std::uint32_t controlKey = 29;
constexpr std::uint32_t controlModifier = 4;

// From "wlr-virtual-pointer-unstable-v1" and "virtual-keyboard-unstable-v1"; the order within a table is the
// number that goes over the wire.
const wl_interface *untyped[5]{};
const wl_message pointerRequests[] = {{"motion", "uff", untyped},
                                      {"motion_absolute", "uuuuu", untyped},
                                      {"button", "uuu", untyped},
                                      {"axis", "uuf", untyped},
                                      {"frame", "", untyped}};
const wl_message keyboardRequests[] = {
    {"keymap", "uhu", untyped}, {"key", "uuu", untyped}, {"modifiers", "uuuu", untyped}};
const wl_interface virtualPointer{"zwlr_virtual_pointer_v1", 1, std::size(pointerRequests),
                                  pointerRequests,           0, nullptr};
const wl_interface virtualKeyboard{"zwp_virtual_keyboard_v1", 1, std::size(keyboardRequests),
                                   keyboardRequests,          0, nullptr};
const wl_interface *pointerTypes[] = {&wl_seat_interface, &virtualPointer};
const wl_interface *keyboardTypes[] = {&wl_seat_interface, &virtualKeyboard};
const wl_message pointerManagerRequests[] = {{"create_virtual_pointer", "?on", pointerTypes}};
const wl_message keyboardManagerRequests[] = {{"create_virtual_keyboard", "on", keyboardTypes}};
const wl_interface pointerManager{"zwlr_virtual_pointer_manager_v1",
                                  1,
                                  std::size(pointerManagerRequests),
                                  pointerManagerRequests,
                                  0,
                                  nullptr};
const wl_interface keyboardManager{"zwp_virtual_keyboard_manager_v1", 1, std::size(keyboardManagerRequests),
                                   keyboardManagerRequests,           0, nullptr};

constexpr std::string_view keymap = "xkb_keymap {"
                                    "xkb_keycodes { include \"evdev+aliases(qwerty)\" };"
                                    "xkb_types { include \"complete\" };"
                                    "xkb_compat { include \"complete\" };"
                                    "xkb_symbols { include \"pc+us+inet(evdev)\" };"
                                    "};";

template <class... Arguments>
void send(wl_proxy *object, std::uint32_t request, Arguments... arguments) {
    wl_proxy_marshal_flags(object, request, nullptr, 1, 0, arguments...);
}

} // namespace

struct WaylandHands::Devices {
    Devices() : display(wl_display_connect(nullptr)) {
        if (!display)
            return;
        clock.start();
        static const wl_registry_listener listener{
            [](void *self, wl_registry *registry, std::uint32_t name, const char *interface, std::uint32_t) {
                static_cast<Devices *>(self)->add(registry, name, interface);
            },
            [](void *, wl_registry *, std::uint32_t) {}};
        wl_registry *const registry = wl_display_get_registry(display);
        wl_registry_add_listener(registry, &listener, this);
        wl_display_roundtrip(display);
        if (seat && pointers && keyboards)
            make();
    }
    ~Devices() {
        if (display)
            wl_display_disconnect(display);
    }
    Devices(const Devices &) = delete;
    Devices &operator=(const Devices &) = delete;

    void add(wl_registry *registry, std::uint32_t name, std::string_view interface) {
        for (const auto &[type, object] :
             {std::pair(&wl_seat_interface, &seat), std::pair(&pointerManager, &pointers),
              std::pair(&keyboardManager, &keyboards)}) {
            if (interface == type->name)
                *object = static_cast<wl_proxy *>(wl_registry_bind(registry, name, type, 1));
        }
    }

    void make() {
        pointer = wl_proxy_marshal_flags(pointers, 0, &virtualPointer, 1, 0, seat, nullptr);
        keyboard = wl_proxy_marshal_flags(keyboards, 0, &virtualKeyboard, 1, 0, seat, nullptr);
        QTemporaryFile file;
        if (!file.open() || file.write(keymap.data(), keymap.size()) < 0 || !file.flush())
            return;
        send(keyboard, 0, std::uint32_t{WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1}, file.handle(),
             static_cast<std::uint32_t>(keymap.size()));
        finish();
    }

    void finish() const { wl_display_roundtrip(display); }
    [[nodiscard]] std::uint32_t now() const { return static_cast<std::uint32_t>(clock.elapsed()); }

    wl_display *const display;
    QElapsedTimer clock;
    wl_proxy *seat = nullptr;
    wl_proxy *pointers = nullptr;
    wl_proxy *keyboards = nullptr;
    wl_proxy *pointer = nullptr;
    wl_proxy *keyboard = nullptr;
};

WaylandHands::WaylandHands(QSize layout) : m_devices(std::make_unique<Devices>()), m_layout(layout) {}

WaylandHands::~WaylandHands() = default;

bool WaylandHands::areReady() const {
    return m_devices->keyboard != nullptr;
}

void WaylandHands::setLayout(QSize layout) {
    m_layout = layout;
}

void WaylandHands::moveTo(QPoint point) {
    // In the middle of the point.
    const auto doubled = [](int value) { return static_cast<std::uint32_t>(2 * value); };
    send(m_devices->pointer, 1, m_devices->now(), doubled(point.x()) + 1, doubled(point.y()) + 1,
         doubled(m_layout.width()), doubled(m_layout.height()));
    send(m_devices->pointer, 4);
    m_devices->finish();
}

void WaylandHands::setButton(std::uint32_t button, bool isDown) {
    send(m_devices->pointer, 2, m_devices->now(), button, std::uint32_t{isDown});
    send(m_devices->pointer, 4);
    m_devices->finish();
}

void WaylandHands::click(QPoint point, std::uint32_t button) {
    moveTo(point);
    setButton(button, true);
    setButton(button, false);
}

void WaylandHands::press(std::uint32_t key) {
    send(m_devices->keyboard, 1, m_devices->now(), key, std::uint32_t{1});
    send(m_devices->keyboard, 1, m_devices->now(), key, std::uint32_t{0});
    m_devices->finish();
}

void WaylandHands::pressWithControl(std::uint32_t key) {
    setControl(true);
    press(key);
    setControl(false);
}

void WaylandHands::setControl(bool isDown) {
    send(m_devices->keyboard, 1, m_devices->now(), controlKey, std::uint32_t{isDown});
    send(m_devices->keyboard, 2, isDown ? controlModifier : std::uint32_t{0}, std::uint32_t{0},
         std::uint32_t{0}, std::uint32_t{0});
}

} // namespace tembra
