// soak [MINUTES] [SEED]: the built program under a storm for so long, then through an hour's use, which is
// all of it with no minutes; see tests/soak/run.

#include "Hour.h"
#include "Storm.h"
#include "support/ChildProgram.h"

#include <QTemporaryDir>

#include <optional>
#include <random>

using namespace tembra;

namespace {

// A desktop on the display of the day.
struct Desktop {
    Desktop() {
        qputenv("XDG_CONFIG_HOME", configuration.path().toLocal8Bit());
        manager.emplace({"openbox"});
        // It minds displays that come and go, in words.
        compositor.emplace({"sh", "-c", "exec picom --backend xrender 2>/dev/null"});
    }
    QTemporaryDir configuration;
    std::optional<ChildProgram> manager;
    std::optional<ChildProgram> compositor;
};

} // namespace

int main(int argumentCount, char **arguments) {
    const double minutes = argumentCount > 1 ? std::atof(arguments[1]) : 10;
    const std::uint64_t seed =
        argumentCount > 2 ? std::strtoull(arguments[2], nullptr, 10) : std::random_device()();
    std::printf("%g minutes, seed %llu\n", minutes, static_cast<unsigned long long>(seed));
    std::fflush(stdout);
    DummyServer server;
    const Desktop desktop;
    Dice dice(seed);
    Tally tally;
    const std::chrono::seconds length(static_cast<int>(minutes * 60));
    // Every minute, and in a short storm at least twice.
    if (length > length.zero())
        Storm(server, dice, tally).blowFor(length, std::min(length / 3, std::chrono::seconds(60)));
    const bool isShort = length > length.zero() && length < std::chrono::minutes(5);
    Hour(dice, tally, server.isRunning() ? 1024 : 1280).live(isShort ? 20 : 1);
    tally.print();
    return tally.isClean() ? 0 : 1;
}
