#pragma once

#include "platform/linux/desktop/Observers.h"

#include <QAbstractNativeEventFilter>

#include <xcb/xcb.h>

#include <cstdlib>
#include <functional>
#include <memory>
#include <optional>

QT_BEGIN_NAMESPACE
class QByteArray;
QT_END_NAMESPACE

namespace tembra {

struct FreeReply {
    void operator()(void *reply) const { std::free(reply); }
};

// What an xcb request answered; empty when it failed.
template <class Reply>
using X11Reply = std::unique_ptr<Reply, FreeReply>;

// The connection to the X server that Qt opened, and its one event filter. Main thread; ends before the
// application object.
class X11Connection final : public QAbstractNativeEventFilter {
public:
    class Subscription {
    public:
        virtual ~Subscription() = default;
    };

    // Nothing when the program does not run on X11.
    [[nodiscard]] static std::shared_ptr<X11Connection> open();
    ~X11Connection() override;
    X11Connection(const X11Connection &) = delete;
    X11Connection &operator=(const X11Connection &) = delete;

    [[nodiscard]] xcb_connection_t *xcb() const { return m_xcb; }
    [[nodiscard]] xcb_window_t root() const { return m_root; }
    [[nodiscard]] int screenNumber() const { return m_screenNumber; }
    // The window was made through this connection: by Qt or by us.
    [[nodiscard]] bool owns(xcb_window_t window) const;
    [[nodiscard]] xcb_atom_t atom(const QByteArray &name) const;
    [[nodiscard]] xcb_window_t selectionOwner(xcb_atom_t selection) const;

    // The 32 bits that a property of the root window holds; nothing when it is not set to such.
    [[nodiscard]] std::optional<std::uint32_t> rootValue(xcb_atom_t property, xcb_atom_t type) const;

    // Every event of the connection, before Qt handles it.
    [[nodiscard]] std::unique_ptr<Subscription>
    subscribe(std::function<void(const xcb_generic_event_t &)> onEvent);
    // Called when that property of the root window changes.
    [[nodiscard]] std::unique_ptr<Subscription> watchRootProperty(xcb_atom_t property,
                                                                  std::function<void()> onChange);
    // Called with the new owner, or none, when the selection is taken or given up. One at a time for each
    // selection; nothing on a server without such events.
    [[nodiscard]] std::unique_ptr<Subscription>
    watchSelection(xcb_atom_t selection, std::function<void(xcb_window_t owner)> onChange);

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    X11Connection(xcb_connection_t *xcb, int screenNumber, xcb_window_t root);

    xcb_connection_t *const m_xcb;
    const int m_screenNumber;
    const xcb_window_t m_root;
    // What the numbers of the selection events start at; nothing on a server without them.
    const std::optional<std::uint8_t> m_firstFixesEvent;
    Observers<Subscription, const xcb_generic_event_t &> m_observers;
};

} // namespace tembra
