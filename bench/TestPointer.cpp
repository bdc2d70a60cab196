#include "TestPointer.h"

#include <xcb/xtest.h>

#include <cstdio>
#include <cstdlib>

namespace tembra::bench {

TestPointer::TestPointer() : m_connection(xcb_connect(nullptr, nullptr)) {
    if (xcb_connection_has_error(m_connection)) {
        std::fprintf(stderr, "no display\n");
        std::exit(1);
    }
}

TestPointer::~TestPointer() {
    xcb_disconnect(m_connection);
}

void TestPointer::moveTo(QPoint place) {
    xcb_test_fake_input(m_connection, XCB_MOTION_NOTIFY, 0, XCB_CURRENT_TIME, XCB_WINDOW_NONE,
                        static_cast<int16_t>(place.x()), static_cast<int16_t>(place.y()), 0);
    xcb_flush(m_connection);
}

} // namespace tembra::bench
