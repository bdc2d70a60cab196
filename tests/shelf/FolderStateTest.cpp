#include "shelf/CaptureNotification.h"
#include "shelf/FolderNotification.h"

#include <gtest/gtest.h>

using namespace tembra;
using State = ScreenshotFolderState;

namespace {

const QString shots = QStringLiteral("/home/u/Shots");

ScreenshotDestination folder(const QString &path) {
    return ScreenshotDestination::toFolder(path);
}

} // namespace

TEST(ScreenshotFolderState, followsFromTheFolderAndTheToolsDestination) {
    struct Row {
        const char *what;
        ScreenshotFolderFacts facts;
        State expected;
    };
    const std::vector<Row> table{
        {"nothing granted", {.destination = folder(shots)}, State::none},
        {"before the tool was asked", {.folder = shots, .hasCompletedInitialScan = true}, State::ready},
        {"first scan running", {.folder = shots, .destination = folder(shots)}, State::loading},
        {"scanned",
         {.folder = shots, .destination = folder(shots), .hasCompletedInitialScan = true},
         State::ready},
        {"tool saves elsewhere",
         {.folder = shots, .destination = folder(QStringLiteral("/x")), .hasCompletedInitialScan = true},
         State::elsewhere},
        {"to the clipboard",
         {.folder = shots, .destination = ScreenshotDestination::toClipboard()},
         State::clipboard},
        {"to mail", {.destination = ScreenshotDestination::toOther(QStringLiteral("mail"))}, State::other},
        {"gone",
         {.folder = shots,
          .unavailable = true,
          .destination = folder(shots),
          .hasCompletedInitialScan = true},
         State::missing},
    };
    for (const Row &row : table)
        EXPECT_EQ(screenshotFolderState(row.facts), row.expected) << row.what;
}

TEST(FolderNotification, announcesOnlyTurnsForTheWorseAndTheRecovery) {
    const auto announced = [](std::optional<State> before, State now) {
        return folderNotification(before, now).value_or(QString());
    };
    EXPECT_EQ(announced(State::ready, State::elsewhere), QStringLiteral("Screenshot location changed"));
    EXPECT_EQ(announced(State::ready, State::clipboard),
              QStringLiteral("Screenshots aren’t saving to a folder"));
    EXPECT_EQ(announced(State::ready, State::missing), QStringLiteral("Screenshots folder unavailable"));
    EXPECT_EQ(announced(State::missing, State::loading), QStringLiteral("Screenshots folder recovered"));
    EXPECT_EQ(announced(State::missing, State::missing), QString());
    EXPECT_EQ(announced(State::loading, State::ready), QString());
    EXPECT_EQ(announced(std::nullopt, State::ready), QString());
}

TEST(CaptureNotification, capturesThatArriveWhileItShowsJoinIt) {
    const auto path = [](int i) { return QStringLiteral("/s/%1.png").arg(i); };
    const QString phrase = QStringLiteral("Got that");
    CaptureNotification showing = joined({}, {{.path = path(1), .isFirst = true}}, phrase);
    EXPECT_EQ(showing.text, QStringLiteral("Got it! First one caught"));
    EXPECT_EQ(showing.detail(), QStringLiteral("Screenshot saved"));
    showing.copyState = CaptureNotification::CopyState::copied;
    EXPECT_EQ(showing.detail(), QStringLiteral("Screenshot saved · copied"));

    showing = joined(showing, {{.path = path(3)}, {.path = path(2)}}, phrase);
    EXPECT_EQ(showing.text, phrase);
    EXPECT_EQ(showing.detail(), QStringLiteral("3 screenshots")) << "not all of them are copied yet";
    showing.copyState = CaptureNotification::CopyState::postponed;
    EXPECT_EQ(showing.detail(), QStringLiteral("Copies when you open the shelf"));
    EXPECT_EQ(showing.previews, (QStringList{path(3), path(2), path(1)}));
    EXPECT_EQ(showing.overflow(), 0);

    showing = joined(showing, {{.path = path(4), .isRecording = true}}, phrase);
    EXPECT_EQ(showing.text, QStringLiteral("Got the recording"));
    EXPECT_EQ(showing.detail(), QStringLiteral("4 captures"));
    EXPECT_EQ(showing.previews, (QStringList{path(4), path(3), path(2)}));
    EXPECT_EQ(showing.overflow(), 1);
}
