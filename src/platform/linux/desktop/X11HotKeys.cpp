#include "platform/linux/desktop/X11HotKeys.h"

#include "platform/linux/desktop/HotKeyErrors.h"
#include "platform/linux/desktop/KeyPositions.h"
#include "platform/linux/desktop/X11Connection.h"

#include <QByteArray>

#include <algorithm>
#include <span>
#include <utility>

namespace tembra {

namespace {

// X11/keysymdef.h
enum Keysym : xcb_keysym_t {
    numLockKey = 0xff7f,
    scrollLockKey = 0xff14,
    leftAltKey = 0xffe9,
    rightAltKey = 0xffea,
    leftSuperKey = 0xffeb,
    rightSuperKey = 0xffec,
};

enum CarbonModifier : std::uint32_t { command = 0x0100, shift = 0x0200, option = 0x0800, control = 0x1000 };

// Every state of the locks.
std::vector<std::uint16_t> subsetsOf(std::uint16_t mask) {
    std::vector<std::uint16_t> subsets;
    std::uint16_t subset = mask;
    do {
        subsets.push_back(subset);
        subset = static_cast<std::uint16_t>((subset - 1) & mask);
    } while (subset != mask);
    return subsets;
}

std::uint8_t keyboardEvent(xcb_connection_t *xcb) {
    const QByteArray name = QByteArrayLiteral("XKEYBOARD");
    const auto cookie = xcb_query_extension(xcb, static_cast<std::uint16_t>(name.size()), name.constData());
    const X11Reply<xcb_query_extension_reply_t> reply(xcb_query_extension_reply(xcb, cookie, nullptr));
    return reply && reply->present ? reply->first_event : std::uint8_t{0};
}

// Which of the modifiers has a key that is one of `wanted`.
class ModifierMap {
public:
    explicit ModifierMap(xcb_connection_t *xcb)
        : m_first(xcb_get_setup(xcb)->min_keycode),
          m_map(xcb_get_modifier_mapping_reply(xcb, xcb_get_modifier_mapping(xcb), nullptr)) {
        const auto count = static_cast<std::uint8_t>(xcb_get_setup(xcb)->max_keycode - m_first + 1);
        m_keyboard.reset(
            xcb_get_keyboard_mapping_reply(xcb, xcb_get_keyboard_mapping(xcb, m_first, count), nullptr));
    }

    [[nodiscard]] std::optional<std::uint16_t> maskOf(std::initializer_list<xcb_keysym_t> wanted) const {
        if (!m_map || !m_keyboard)
            return std::nullopt;
        const std::span keycodes(
            xcb_get_modifier_mapping_keycodes(m_map.get()),
            static_cast<std::size_t>(xcb_get_modifier_mapping_keycodes_length(m_map.get())));
        for (std::size_t i = 0; i < keycodes.size(); ++i) {
            const auto keysyms = keysymsOf(keycodes[i]);
            if (std::ranges::find_first_of(keysyms, wanted) != keysyms.end())
                return static_cast<std::uint16_t>(1U << (i / m_map->keycodes_per_modifier));
        }
        return std::nullopt;
    }

private:
    [[nodiscard]] std::span<const xcb_keysym_t> keysymsOf(xcb_keycode_t keycode) const {
        const std::span<const xcb_keysym_t> all(
            xcb_get_keyboard_mapping_keysyms(m_keyboard.get()),
            static_cast<std::size_t>(xcb_get_keyboard_mapping_keysyms_length(m_keyboard.get())));
        const std::size_t width = m_keyboard->keysyms_per_keycode;
        // A place without a key is 0.
        if (keycode < m_first || (keycode - m_first + 1U) * width > all.size())
            return {};
        return all.subspan((keycode - m_first) * width, width);
    }

    const xcb_keycode_t m_first;
    const X11Reply<xcb_get_modifier_mapping_reply_t> m_map;
    X11Reply<xcb_get_keyboard_mapping_reply_t> m_keyboard;
};

} // namespace

// One key with the locks in every state.
class X11HotKeys::Grab final : public Registration {
public:
    Grab(X11HotKeys &owner, xcb_keycode_t keycode, std::uint32_t carbonModifiers, Callbacks callbacks)
        : m_owner(owner), m_keycode(keycode), m_carbon(carbonModifiers), m_callbacks(std::move(callbacks)) {
        m_owner.m_grabs.push_back(this);
    }
    ~Grab() override {
        std::erase(m_owner.m_grabs, this);
        release();
    }
    Grab(const Grab &) = delete;
    Grab &operator=(const Grab &) = delete;

    // False where any of it belongs to another program; then none of it is ours.
    [[nodiscard]] bool take() {
        m_modifiers = maskOf(m_owner.m_modifiers);
        xcb_connection_t *const xcb = m_owner.m_connection->xcb();
        std::vector<xcb_void_cookie_t> requests;
        for (const std::uint16_t locks : subsetsOf(m_owner.m_modifiers.locks())) {
            requests.push_back(xcb_grab_key_checked(xcb, 0, m_owner.m_connection->root(),
                                                    static_cast<std::uint16_t>(m_modifiers | locks),
                                                    m_keycode, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
        }
        bool isOurs = true;
        for (const xcb_void_cookie_t request : requests) {
            const X11Reply<xcb_generic_error_t> error(xcb_request_check(xcb, request));
            isOurs = isOurs && !error;
        }
        if (!isOurs)
            release();
        return isOurs;
    }
    // What another grab of ours has too stays: the server keeps it once for the program.
    void release() {
        const bool isShared = std::ranges::any_of(m_owner.m_grabs, [this](const Grab *other) {
            return other != this && other->m_keycode == m_keycode && other->m_modifiers == m_modifiers;
        });
        if (isShared)
            return;
        const X11Connection &connection = *m_owner.m_connection;
        for (const std::uint16_t locks : subsetsOf(m_owner.m_modifiers.locks())) {
            xcb_ungrab_key(connection.xcb(), m_keycode, connection.root(),
                           static_cast<std::uint16_t>(m_modifiers | locks));
        }
        // Whoever hears that it is free finds it free.
        const X11Reply<xcb_get_input_focus_reply_t> done(
            xcb_get_input_focus_reply(connection.xcb(), xcb_get_input_focus(connection.xcb()), nullptr));
    }

    [[nodiscard]] bool isMeant(const xcb_key_press_event_t &event) const {
        constexpr std::uint16_t modifierKeys = 0xff;
        const auto held =
            static_cast<std::uint16_t>(event.state & modifierKeys & ~m_owner.m_modifiers.locks());
        return event.event == m_owner.m_connection->root() && event.detail == m_keycode &&
               held == m_modifiers;
    }
    // Whether it is a new press. A key that is held down comes up and goes down again at the same moment,
    // with the modifiers as they were.
    [[nodiscard]] bool pressed(const xcb_key_press_event_t &event) {
        const bool isRepeated = m_isDown || m_released == Release{event.time, event.state};
        m_isDown = true;
        return !isRepeated;
    }
    void released(const xcb_key_release_event_t &event) {
        if (event.detail != m_keycode)
            return;
        m_isDown = false;
        m_released = Release{event.time, event.state};
    }
    [[nodiscard]] const Callbacks &callbacks() const { return m_callbacks; }

private:
    struct Release {
        xcb_timestamp_t time = XCB_CURRENT_TIME;
        std::uint16_t state = 0;

        bool operator==(const Release &) const = default;
    };

    [[nodiscard]] std::uint16_t maskOf(const Modifiers &known) const {
        std::uint16_t mask = 0;
        const auto add = [&](CarbonModifier modifier, std::uint16_t its) {
            if (m_carbon & modifier)
                mask = static_cast<std::uint16_t>(mask | its);
        };
        add(command, known.super);
        add(shift, XCB_MOD_MASK_SHIFT);
        add(option, known.alt);
        add(control, XCB_MOD_MASK_CONTROL);
        return mask;
    }

    X11HotKeys &m_owner;
    const xcb_keycode_t m_keycode;
    const std::uint32_t m_carbon;
    const Callbacks m_callbacks;
    std::uint16_t m_modifiers = 0;
    bool m_isDown = false;
    std::optional<Release> m_released;
};

X11HotKeys::X11HotKeys(std::shared_ptr<X11Connection> connection)
    : m_connection(std::move(connection)),
      m_keyboardEvent(keyboardEvent(m_connection->xcb())),
      m_modifiers(readModifiers()),
      m_events(m_connection->subscribe([this](const xcb_generic_event_t &event) { receive(event); })) {}

X11HotKeys::~X11HotKeys() = default;

Result<std::unique_ptr<HotKeys::Registration>> X11HotKeys::registerHotKey(const HotKey &key,
                                                                          Callbacks callbacks) {
    const auto keycode = keycodeOf(key.keyCode);
    if (!keycode || *keycode > xcb_get_setup(m_connection->xcb())->max_keycode)
        return failure(hotKeyTaken());
    auto grab = std::make_unique<Grab>(*this, static_cast<xcb_keycode_t>(*keycode), key.modifiers,
                                       std::move(callbacks));
    if (!grab->take())
        return failure(hotKeyTaken());
    return grab;
}

std::optional<std::uint32_t> X11HotKeys::virtualKeyCode(const QKeyEvent &event) const {
    return virtualKeyOf(event);
}

X11HotKeys::Modifiers X11HotKeys::readModifiers() const {
    const ModifierMap map(m_connection->xcb());
    const Modifiers usual;
    return {.super = map.maskOf({leftSuperKey, rightSuperKey}).value_or(usual.super),
            .alt = map.maskOf({leftAltKey, rightAltKey}).value_or(usual.alt),
            .numLock = map.maskOf({numLockKey}).value_or(0),
            .scrollLock = map.maskOf({scrollLockKey}).value_or(0)};
}

// Who has asked for the extension's events, as Qt has, is not always told in the old way.
bool X11HotKeys::isKeyboardChange(const xcb_generic_event_t &event) const {
    constexpr std::uint8_t eventNumberMask = 0x7f;
    enum KeyboardEvent : std::uint8_t { newKeyboard = 0, map = 1 };
    const int type = event.response_type & eventNumberMask;
    if (type == XCB_MAPPING_NOTIFY)
        return true;
    return m_keyboardEvent != 0 && type == m_keyboardEvent &&
           (event.pad0 == newKeyboard || event.pad0 == map);
}

void X11HotKeys::receive(const xcb_generic_event_t &event) {
    // What other programs only claim has one more bit.
    if (event.response_type == XCB_KEY_PRESS)
        return receivePress(reinterpret_cast<const xcb_key_press_event_t &>(event));
    if (event.response_type == XCB_KEY_RELEASE) {
        for (Grab *const grab : m_grabs)
            grab->released(reinterpret_cast<const xcb_key_release_event_t &>(event));
        return;
    }
    if (isKeyboardChange(event))
        keyboardChanged();
}

void X11HotKeys::receivePress(const xcb_key_press_event_t &event) {
    std::vector<std::function<void()>> told;
    for (Grab *const grab : m_grabs) {
        if (grab->isMeant(event) && grab->pressed(event))
            told.push_back(grab->callbacks().onPressed);
    }
    // They may drop their registrations.
    for (const auto &onPressed : told)
        onPressed();
}

void X11HotKeys::keyboardChanged() {
    const Modifiers modifiers = readModifiers();
    if (modifiers == m_modifiers)
        return;
    for (Grab *const grab : m_grabs)
        grab->release();
    m_modifiers = modifiers;
    std::vector<std::function<void(const Error &)>> told;
    for (Grab *const grab : m_grabs) {
        if (!grab->take())
            told.push_back(grab->callbacks().onLost);
    }
    for (const auto &onLost : told)
        onLost(hotKeyTaken());
}

} // namespace tembra
