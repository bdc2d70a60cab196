// process_bench TEMBRA BARE: start-up time of the program, beside a bare Qt Widgets window and beside other
// screenshot programs. Needs an X display without a window manager, and a session bus. Run through bench/run.

#include "Child.h"
#include "Require.h"
#include "Row.h"
#include "Timing.h"
#include "UserHome.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QStandardPaths>

#include <xcb/xcb.h>

#include <cstdlib>
#include <functional>
#include <thread>
#include <vector>

using namespace std::chrono_literals;
using namespace tembra::bench;

namespace {

constexpr int usualCount = 10'000;

// Sees the windows that programs map.
class MapWatch {
public:
    MapWatch() : m_connection(xcb_connect(nullptr, nullptr)) {
        require(!xcb_connection_has_error(m_connection), "no display");
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

    // Until the next window appears.
    void awaitNext() {
        while (xcb_generic_event_t *event = xcb_wait_for_event(m_connection)) {
            const bool mapped = (event->response_type & 0x7f) == XCB_MAP_NOTIFY;
            std::free(event);
            if (mapped)
                return;
        }
        require(false, "the display went");
    }

private:
    xcb_connection_t *m_connection;
};

// A program, and how it is known that it is there.
struct Program {
    std::string path;
    std::function<void()> awaitReady;
};

// Until the program's main thread answers on the bus, be it only that it has no such method.
void awaitAnswer(const QString &service, const QString &object) {
    const auto start = Clock::now();
    auto question = QDBusMessage::createMethodCall(service, object, service, QStringLiteral("Nothing"));
    // Else the bus would start another one.
    question.setAutoStartService(false);
    while (QDBusConnection::sessionBus().call(question).errorName() !=
           u"org.freedesktop.DBus.Error.UnknownMethod") {
        require(millisecondsSince(start) < 20'000, "a program did not come up");
        std::this_thread::sleep_for(1ms);
    }
}

double startMilliseconds(const Program &program, MapWatch &watch) {
    watch.forget();
    const Child child({program.path});
    program.awaitReady();
    const double elapsed = millisecondsSince(child.startedAt());
    std::this_thread::sleep_for(300ms);
    return elapsed;
}

// Another program that waits for a screenshot to be taken, and what its start and ours are told by.
struct Other {
    std::string name;
    std::string sign;
    Program theirs;
    std::function<void()> awaitOurs;
    std::vector<double> theirStarts{};
    std::vector<double> ourStarts{};
};

// Those that are installed.
std::vector<Other> others(MapWatch &watch) {
    const auto awaitWindow = [&watch] { watch.awaitNext(); };
    const auto awaitFlameshot = [] {
        awaitAnswer(QStringLiteral("org.flameshot.Flameshot"), QStringLiteral("/"));
    };
    const auto awaitTembra = [] {
        awaitAnswer(QStringLiteral("app.tembra.Tembra"), QStringLiteral("/app/tembra/Tembra"));
    };
    std::vector<Other> installed;
    for (Other other : {Other{"flameshot", "an answer on the bus", {"", awaitFlameshot}, awaitTembra},
                        Other{"ksnip", "a window mapped", {"", awaitWindow}, awaitWindow}}) {
        other.theirs.path = QStandardPaths::findExecutable(QString::fromStdString(other.name)).toStdString();
        if (other.theirs.path.empty())
            printNote(other.name + " is not installed");
        else
            installed.push_back(std::move(other));
    }
    return installed;
}

void measureStart(const Program &ours, const Program &bare, std::vector<Other> others, MapWatch &watch) {
    std::vector<double> ourStarts;
    std::vector<double> bareStarts;
    for (int round = 0; round < 11; ++round) {
        bareStarts.push_back(startMilliseconds(bare, watch));
        ourStarts.push_back(startMilliseconds(ours, watch));
    }
    printRow({.what = "start to the shelf reacting",
              .ours = median(ourStarts),
              .unit = "ms",
              .peer = Peer{"a bare Qt window mapped", median(bareStarts)},
              .goal = atMostTimes(2)});
    for (Other &other : others) {
        for (int round = 0; round < 5; ++round) {
            other.theirStarts.push_back(startMilliseconds(other.theirs, watch));
            other.ourStarts.push_back(startMilliseconds({ours.path, other.awaitOurs}, watch));
        }
        printRow({.what = "start to " + other.sign,
                  .ours = median(other.ourStarts),
                  .unit = "ms",
                  .peer = Peer{other.name, median(other.theirStarts)}});
    }
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: process_bench TEMBRA BARE\n");
        return 2;
    }
    const QCoreApplication application(argc, argv);
    MapWatch watch;
    const auto awaitWindow = [&watch] { watch.awaitNext(); };
    const Program ours{argv[1], awaitWindow};
    const UserHome home(usualCount);
    printArea("The process, 10,000 captures known");
    measureStart(ours, {argv[2], awaitWindow}, others(watch), watch);
    return EXIT_SUCCESS;
}
