#pragma once

#include <QByteArray>
#include <QHash>
#include <QPoint>

#include <xcb/xcb.h>

#include <atomic>
#include <thread>

namespace tembra {

// Another program that drags a file which it has yet to write, on a thread and a connection of its own
// (freedesktop.org, XDND version 5 and Direct Save Protocol version 0).
class DirectSaveSource {
public:
    struct Offer {
        QByteArray name;
        // What it answers when asked to save: 'S' after having done so, 'F' or 'E'.
        char answer = 'S';
        QByteArray content;
    };

    // Drops the file on the window.
    DirectSaveSource(Offer offer, xcb_window_t target, QPoint rootPosition);
    ~DirectSaveSource();
    DirectSaveSource(const DirectSaveSource &) = delete;
    DirectSaveSource &operator=(const DirectSaveSource &) = delete;

    // The receiver is done with the drop.
    [[nodiscard]] bool isFinished() const { return m_isFinished; }
    // Once it is finished: what the receiver left in the property.
    [[nodiscard]] QByteArray property() const { return m_lastProperty; }

private:
    void run();
    void tell(const char *message, std::uint32_t second, std::uint32_t third, std::uint32_t fourth,
              std::uint32_t fifth);
    void handle(const xcb_client_message_event_t &message);
    void answer(const xcb_selection_request_event_t &request);
    [[nodiscard]] QByteArray data(xcb_atom_t type);
    [[nodiscard]] QByteArray readProperty();
    [[nodiscard]] xcb_atom_t atom(const QByteArray &name);

    const Offer m_offer;
    const xcb_window_t m_target;
    const QPoint m_position;
    xcb_connection_t *const m_xcb;
    xcb_window_t m_window = XCB_WINDOW_NONE;
    QHash<QByteArray, xcb_atom_t> m_atoms;
    bool m_hasDropped = false;
    QByteArray m_lastProperty;
    std::atomic<bool> m_isFinished = false;
    std::thread m_thread;
};

} // namespace tembra
