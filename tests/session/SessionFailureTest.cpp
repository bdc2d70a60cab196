#include "session/LiveSession.h"

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using namespace tembra;

namespace {

// Ends the process at that step of the moves that `action` makes; gives whether it was reached.
bool isKilledAt(int step, LiveSession &live, const std::function<void()> &action) {
    const pid_t child = ::fork();
    if (child == 0) {
        int steps = 0;
        live.parts.onTrashStep = [&](const char *) {
            if (++steps == step)
                ::kill(::getpid(), SIGKILL);
        };
        action();
        ::_exit(0);
    }
    int status = 0;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    return WIFSIGNALED(status);
}

class SessionKilled : public testing::TestWithParam<bool> {};

INSTANTIATE_TEST_SUITE_P(During, SessionKilled, testing::Bool(),
                         [](const auto &restores) { return restores.param ? "ARestore" : "ARemoval"; });

} // namespace

TEST_P(SessionKilled, leavesEveryFileInOnePlaceAndTheNextStartShowsThose) {
    int step = 0;
    QSet<qsizetype> countsLeft;
    for (bool isKilled = true; isKilled;) {
        LiveSession live;
        const QStringList names = live.writeOld(5);
        live.start();
        const auto remove = [&] { live.session.removeScreenshots(live.shots(names)); };
        if (GetParam()) {
            remove();
            isKilled = isKilledAt(++step, live, [&] { live.session.undo(); });
        } else {
            isKilled = isKilledAt(++step, live, remove);
        }
        const QStringList left = LiveSession::filesIn(live.folder);
        QStringList all = left + LiveSession::filesIn(live.trashedFiles());
        all.sort();
        EXPECT_EQ(all, names) << "killed at step " << step;
        countsLeft.insert(left.size());

        LiveSession next(live.folder);
        next.start();
        EXPECT_EQ(next.shown(), left) << "killed at step " << step;
    }
    EXPECT_EQ(countsLeft, (QSet<qsizetype>{0, 1, 2, 3, 4, 5}));
}
