#pragma once

#include <QPoint>

#include <xcb/xcb.h>

namespace tembra::bench {

// Moves the display's real pointer, on a connection of its own.
class TestPointer {
public:
    TestPointer();
    ~TestPointer();
    TestPointer(const TestPointer &) = delete;
    TestPointer &operator=(const TestPointer &) = delete;

    void moveTo(QPoint place);

private:
    xcb_connection_t *m_connection;
};

} // namespace tembra::bench
