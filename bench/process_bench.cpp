// process_bench TEMBRA BARE CAPTURES: start-up time, idle memory and idle wake-ups of the program, beside a
// bare Qt Widgets window in the same run. Needs an X display without a window manager; CAPTURES files are
// known to the program while it idles. Run through bench/run.

#include "Child.h"
#include "Row.h"

#include <xcb/xcb.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <poll.h>
#include <thread>

using namespace std::chrono_literals;
using namespace tembra::bench;
using Milliseconds = std::chrono::duration<double, std::milli>;

namespace {

// Sees the windows that programs map.
class MapWatch {
public:
    MapWatch() : m_connection(xcb_connect(nullptr, nullptr)) {
        if (xcb_connection_has_error(m_connection)) {
            std::fprintf(stderr, "no display\n");
            std::exit(1);
        }
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
        const uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(m_connection, root, XCB_CW_EVENT_MASK, &mask);
        xcb_flush(m_connection);
    }
    ~MapWatch() { xcb_disconnect(m_connection); }
    MapWatch(const MapWatch &) = delete;
    MapWatch &operator=(const MapWatch &) = delete;

    void forget() {
        std::this_thread::sleep_for(100ms);
        while (xcb_generic_event_t *event = xcb_poll_for_event(m_connection))
            std::free(event);
    }

    // When the next window appears.
    std::chrono::steady_clock::time_point next() {
        while (xcb_generic_event_t *event = xcb_wait_for_event(m_connection)) {
            const bool mapped = (event->response_type & 0x7f) == XCB_MAP_NOTIFY;
            std::free(event);
            if (mapped)
                return std::chrono::steady_clock::now();
        }
        std::exit(1);
    }

private:
    xcb_connection_t *m_connection;
};

double startMilliseconds(const std::string &program, MapWatch &watch) {
    watch.forget();
    const Child child({program});
    const double elapsed = Milliseconds(watch.next() - child.startedAt()).count();
    std::this_thread::sleep_for(300ms);
    return elapsed;
}

struct Idle {
    double kibibytes = 0;
    long wakeUps = 0;
};

Idle idle(const std::string &program, MapWatch &watch) {
    watch.forget();
    const Child child({program});
    watch.next();
    std::this_thread::sleep_for(5s);
    const long before = child.wakeUps();
    std::this_thread::sleep_for(10s);
    return {static_cast<double>(child.proportionalKiB()), child.wakeUps() - before};
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 4) {
        std::fprintf(stderr, "usage: process_bench TEMBRA BARE CAPTURES\n");
        return 2;
    }
    MapWatch watch;
    std::vector<double> ours;
    std::vector<double> bare;
    for (int round = 0; round < 11; ++round) {
        bare.push_back(startMilliseconds(argv[2], watch));
        ours.push_back(startMilliseconds(argv[1], watch));
    }
    printRow("start to shelf reacting / window mapped", median(ours), median(bare), "ms", 2.0);

    const Idle bareIdle = idle(argv[2], watch);
    const Idle ourIdle = idle(argv[1], watch);
    std::printf("%s captures known\n", argv[3]);
    printRow("idle proportional memory", ourIdle.kibibytes / 1024, bareIdle.kibibytes / 1024, "MiB", 1.8);
    std::printf("%-52s %9ld %9ld      goal 0  %s\n", "wake-ups in 10 idle seconds", ourIdle.wakeUps,
                bareIdle.wakeUps, ourIdle.wakeUps == 0 ? "pass" : "FALLS SHORT");
    return 0;
}
