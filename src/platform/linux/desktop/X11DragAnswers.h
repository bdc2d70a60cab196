#pragma once

#include "platform/linux/desktop/X11Connection.h"

namespace tembra {

// Hands over the files of a drag out of this program where Qt refuses to. GTK 4 asks for them through a
// window of its own and without a time, by which Qt cannot tell whom it answers; the drop then never ends.
// Main thread.
class X11DragAnswers final : public QAbstractNativeEventFilter {
public:
    explicit X11DragAnswers(std::shared_ptr<X11Connection> connection);
    ~X11DragAnswers() override;
    X11DragAnswers(const X11DragAnswers &) = delete;
    X11DragAnswers &operator=(const X11DragAnswers &) = delete;

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    [[nodiscard]] bool isForFiles(const xcb_selection_request_event_t &request) const;
    void answer(const xcb_selection_request_event_t &request, const QByteArray &uris) const;

    const std::shared_ptr<X11Connection> m_connection;
    const xcb_atom_t m_selection;
    const xcb_atom_t m_uriList;
};

} // namespace tembra
