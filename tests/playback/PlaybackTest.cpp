#include "playback/module/QtRecordingPlayer.h"
#include "support/EventLoop.h"

#include <QColor>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

// The middle of each picture that came.
class PlaybackTest : public testing::Test {
protected:
    PlaybackTest() {
        player.onFrame = [this](const QImage &frame) { last = frame.pixelColor(frame.rect().center()); };
    }
    [[nodiscard]] bool shows(bool red, bool blue) {
        return eventually(
            [&] { return last.isValid() && (last.red() > 200) == red && (last.blue() > 200) == blue; });
    }

    const QString recording = QStringLiteral(TEMBRA_RECORDINGS "/red-then-blue.webm");
    QtRecordingPlayer player;
    QColor last;
};

} // namespace

TEST_F(PlaybackTest, playsARecordingToItsEndAndThenFromItsBeginning) {
    player.play(recording);
    EXPECT_TRUE(shows(true, false));
    EXPECT_TRUE(shows(false, true));
    player.play(recording);
    EXPECT_TRUE(shows(true, false));
}

TEST_F(PlaybackTest, ofWhatIsNoRecordingNoPictureComes) {
    player.play(QStringLiteral(__FILE__));
    player.togglePause();
    player.play(recording);
    EXPECT_TRUE(shows(true, false)) << "and the next is played";
}
