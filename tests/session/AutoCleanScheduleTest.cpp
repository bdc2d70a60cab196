#include "session/AutoCleanFixture.h"

#include <QJsonDocument>
#include <QJsonObject>

using namespace tembra;
using namespace std::chrono_literals;

namespace {

using Delay = std::optional<Scheduler::Duration>;

QStringList messages;

class AutoCleanScheduleTest : public AutoCleanFixture {
protected:
    AutoCleanScheduleTest() {
        messages.clear();
        qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &text) { messages += text; });
    }
    ~AutoCleanScheduleTest() override { qInstallMessageHandler(nullptr); }

    // Opens a folder of that many captures.
    void open(int captures, AutoCleanReview review = AutoCleanReview::reviewed,
              Period period = Period::oneDay) {
        for (int number = 0; number < captures; ++number)
            writeFile(capture(number), pictureBytes("png"));
        openFolder(m_folder, period, review);
        followSettings();
        session->onSafetyReview = [this](int count, Period asked, auto decide) {
            reviews += qMakePair(count, asked);
            decision = decide;
        };
        session->isBusy = [this](bool allowSettings) {
            allowed += allowSettings;
            return isBusy;
        };
    }
    [[nodiscard]] QString capture(int number) const {
        return m_folder + QStringLiteral("/Screenshot from 2026-11-21 10-15-%1.png").arg(10 + number);
    }
    void isolatePin() { m_absent = {bookmark(writeFile(path("pinned.png")))}; }
    // Its disk is absent, as far as can be told.
    void loseFolder() {
        const QString key = FolderPreferences{}.bookmarkKey;
        QJsonObject stored = QJsonDocument::fromJson(*m_defaults.data(key)).object();
        stored.insert(QStringLiteral("volume"), QStringLiteral("1"));
        m_defaults.setData(key, QJsonDocument(stored).toJson());
        m_settings->refreshFolderAccess();
        ASSERT_FALSE(m_settings->state().hasFolderAccess);
    }
    [[nodiscard]] Delay nextCheck() const { return session->timeToAutoCleanCheck(); }

    const QString m_folder = makeFolder("shots");
    bool isBusy = false;
    QList<bool> allowed;
    QList<std::pair<int, Period>> reviews;
    std::function<void(bool)> decision;
};

} // namespace

TEST_F(AutoCleanScheduleTest, checksAtOnceThenHourly) {
    open(2);
    session->restartAutoClean();
    session->restartAutoClean();
    EXPECT_EQ(nextCheck(), Delay(10ms));
    EXPECT_EQ(parts.scheduler.nextTolerance(), 1s);
    EXPECT_EQ(parts.scheduler.pendingCount(), 1);
    parts.scheduler.advance(10ms);
    EXPECT_EQ(nextCheck(), std::nullopt);
    finishScan();
    EXPECT_EQ(trashed().size(), 2);
    EXPECT_EQ(nextCheck(), Delay(1h));
    EXPECT_EQ(parts.scheduler.nextTolerance(), 60s);

    writeFile(capture(2), pictureBytes("png"));
    parts.scheduler.advance(1h);
    finishScan();
    EXPECT_EQ(trashed().size(), 3);
    EXPECT_EQ(session->screenshotUndoManager.undoNames(),
              QStringList({QStringLiteral("Auto-clean"), QStringLiteral("Auto-clean")}));
}

TEST_F(AutoCleanScheduleTest, waitsForWhomeverIsBusy) {
    const Shot shot{.location = path("elsewhere.png")};
    const std::pair<std::function<void()>, std::function<void()>> holds[]{
        {[&] { isBusy = true; }, [&] { isBusy = false; }},
        {[&] { session->editorIsOpen = true; }, [&] { session->editorIsOpen = false; }},
        {[&] { session->beginEditorSave(shot); }, [&] { session->finishEditorWrite({}); }},
    };
    for (const auto &[hold, release] : holds) {
        open(1);
        hold();
        session->restartAutoClean();
        for (int check = 0; check < 2; ++check) {
            parts.scheduler.advance(check == 0 ? 10ms : 30s);
            EXPECT_EQ(parts.autoCleanQueue.count(), 0);
            EXPECT_EQ(nextCheck(), Delay(30s));
            EXPECT_EQ(parts.scheduler.nextTolerance(), 1s);
        }
        release();
        parts.scheduler.advance(30s);
        // Who is busy when a run ends is asked again soon.
        hold();
        finishScan();
        EXPECT_EQ(nextCheck(), Delay(30s));
        EXPECT_FALSE(QFile::exists(capture(0)));
        EXPECT_FALSE(allowed.contains(true));
        release();
    }
}

TEST_F(AutoCleanScheduleTest, waitsWhileAPinCannotBeFound) {
    isolatePin();
    open(1);
    session->restartAutoClean();
    finishCheck();
    EXPECT_EQ(nextCheck(), Delay(300s));
    EXPECT_EQ(parts.scheduler.nextTolerance(), 60s);
    EXPECT_TRUE(messages.contains(QStringLiteral("Auto-clean deferred: unresolved pins (1)")));
    m_absent.clear();
    parts.scheduler.advance(300s);
    finishScan();
    EXPECT_EQ(trashed().size(), 1);
}

TEST_F(AutoCleanScheduleTest, hasNoTimerWhenThereIsNothingToDo) {
    struct Case {
        const char *what;
        std::function<void()> prepare;
    };
    for (const Case &c : {Case{"off", [this] { m_settings->setScreenshotAutoClean(Period::never); }},
                          {"folder on an absent disk", [this] { loseFolder(); }},
                          {"stopped", [this] { session->isRunning = false; }},
                          {"cancelled", [this] { session->cancelAutoClean(); }}}) {
        open(1);
        session->restartAutoClean();
        ASSERT_TRUE(nextCheck());
        c.prepare();
        if (!QByteArray(c.what).startsWith("cancelled"))
            session->restartAutoClean();
        EXPECT_EQ(nextCheck(), std::nullopt) << c.what;
        EXPECT_EQ(parts.scheduler.pendingCount(), 0) << c.what;
    }
}

TEST_F(AutoCleanScheduleTest, aPeriodThatChangesDuringTheScanCountsFromThenOn) {
    open(1);
    session->restartAutoClean();
    parts.scheduler.advance(10ms);
    m_settings->setScreenshotAutoClean(Period::thirtyDays);
    finishScan();
    EXPECT_TRUE(QFile::exists(capture(0)));
    finishCheck();
    EXPECT_TRUE(QFile::exists(capture(0))) << "it is ten days old";

    m_settings->setScreenshotAutoClean(Period::sevenDays);
    parts.scheduler.advance(10ms);
    m_settings->setScreenshotAutoClean(Period::threeDays);
    parts.scheduler.advance(10ms);
    EXPECT_EQ(nextCheck(), Delay(30s)) << "the scan that nobody wants is still under way";
    finishScan();
    parts.scheduler.advance(30s);
    finishScan();
    EXPECT_EQ(trashed().size(), 1);
}

TEST_F(AutoCleanScheduleTest, aCancelledBatchStopsAfterTheFileAndIsOneStep) {
    open(5);
    const auto move = session->moveScreenshotToTrash;
    int moves = 0;
    int slices = 0;
    session->moveScreenshotToTrash = [&](const QString &file, const Trash::Guard &guard) {
        spent += SlicedWork::slice;
        parts.scheduler.post([&slices] { ++slices; });
        EXPECT_EQ(slices, moves) << "the event loop runs in between";
        if (++moves == 3)
            session->cancelAutoClean();
        return move(file, guard);
    };
    session->restartAutoClean();
    finishCheck();
    EXPECT_EQ(moves, 3);
    EXPECT_EQ(trashed().size(), 3);
    EXPECT_EQ(nextCheck(), std::nullopt);
    EXPECT_EQ(session->screenshotUndoManager.undoNames(), QStringList(QStringLiteral("Auto-clean")));
    EXPECT_EQ(parts.sounds.played, std::vector{Sounds::Event::movedToTrash});

    EXPECT_TRUE(session->undo());
    parts.scheduler.settle();
    EXPECT_TRUE(trashed().isEmpty());
    EXPECT_EQ(nextCheck(), Delay(10ms));
    // What came back is spared; the others go.
    finishCheck();
    EXPECT_EQ(trashed().size(), 2);
    EXPECT_TRUE(QFile::exists(capture(0)));
}

TEST_F(AutoCleanScheduleTest, whatCannotBeMovedIsCountedAndTheRestGoes) {
    open(3);
    const auto move = session->moveScreenshotToTrash;
    session->moveScreenshotToTrash = [&](const QString &file, const Trash::Guard &guard) -> Result<QString> {
        return file == capture(1) ? failure(error()) : move(file, guard);
    };
    session->onError = [](const QString &, const QString &) { ADD_FAILURE() << "nobody asked for it"; };
    session->restartAutoClean();
    finishCheck();
    EXPECT_EQ(trashed().size(), 2);
    EXPECT_TRUE(QFile::exists(capture(1)));
    EXPECT_TRUE(messages.contains(QStringLiteral("Auto-clean completed with failures: 1")));
    EXPECT_EQ(nextCheck(), Delay(1h));
}

TEST_F(AutoCleanScheduleTest, aFolderThatCannotBeLookedThroughHasItsTurnAgain) {
    open(1);
    session->restartAutoClean();
    ASSERT_TRUE(QDir().rename(m_folder, m_folder + u'x'));
    finishCheck();
    EXPECT_EQ(nextCheck(), Delay(1h));
    ASSERT_TRUE(QDir().rename(m_folder + u'x', m_folder));
    parts.scheduler.advance(1h);
    finishScan();
    EXPECT_EQ(trashed().size(), 1);
}

TEST_F(AutoCleanScheduleTest, aClockThatWasMovedBackMovesNothing) {
    open(2);
    session->runAutoCleanCheck(systemNow() - 48h, false);
    finishScan();
    EXPECT_TRUE(trashed().isEmpty());
    EXPECT_EQ(nextCheck(), Delay(1h));
}

TEST_F(AutoCleanScheduleTest, previewsWhatThePeriodWouldMove) {
    open(3);
    ASSERT_TRUE(m_settings->setScreenshotsPinned({capture(0)}, true));
    const auto preview = [this](Period period) {
        Result<int> answer = -1;
        session->previewAutoClean(period, [&](const Result<int> &count) { answer = count; });
        finishScan();
        return answer;
    };
    EXPECT_EQ(preview(Period::never), 0);
    EXPECT_EQ(preview(Period::sevenDays), 2);
    EXPECT_EQ(preview(Period::thirtyDays), 0);
    EXPECT_TRUE(trashed().isEmpty());

    isolatePin();
    open(3);
    EXPECT_EQ(preview(Period::never), 0);
    const auto answer = preview(Period::sevenDays);
    ASSERT_FALSE(answer);
    EXPECT_EQ(answer.error().domain, QStringLiteral("Tembra.AutoClean"));
    EXPECT_EQ(answer.error().message,
              QStringLiteral("Some pinned files couldn’t be located. Auto-clean remains unchanged."));
}

TEST_F(AutoCleanScheduleTest, isReviewedBeforeItsFirstRun) {
    using Review = AutoCleanReview;
    struct Case {
        Review before;
        int captures;
        bool hasHandler;
        bool losesPin;
        Review after;
        Delay next;
        qsizetype asked;
    };
    for (const Case &c : {Case{Review::notReviewed, 0, true, false, Review::reviewed, 10ms, 0},
                          {Review::shown, 0, true, false, Review::shown, 1h, 0},
                          {Review::notReviewed, 2, true, false, Review::shown, std::nullopt, 1},
                          {Review::shown, 2, true, false, Review::shown, std::nullopt, 1},
                          {Review::notReviewed, 2, false, false, Review::shown, 300s, 0},
                          {Review::notReviewed, 2, true, true, Review::notReviewed, 300s, 0}}) {
        reviews.clear();
        m_absent.clear();
        if (c.losesPin)
            isolatePin();
        open(c.captures, c.before);
        if (!c.hasHandler)
            session->onSafetyReview = nullptr;
        session->restartAutoClean();
        finishCheck();
        EXPECT_EQ(session->autoCleanReview(), c.after);
        EXPECT_EQ(nextCheck(), c.next);
        EXPECT_EQ(reviews.size(), c.asked);
        EXPECT_TRUE(trashed().isEmpty());
    }
}

TEST_F(AutoCleanScheduleTest, theReviewDecides) {
    for (const bool keeps : {false, true}) {
        open(2, AutoCleanReview::notReviewed);
        session->restartAutoClean();
        finishCheck();
        ASSERT_EQ(reviews.takeFirst(), std::pair(2, Period::oneDay));
        session->runAutoCleanCheck(parts.now(), false);
        finishScan();
        EXPECT_TRUE(reviews.isEmpty()) << "asked once";
        allowed.clear();
        decision(keeps);
        EXPECT_EQ(allowed, keeps ? QList{true} : QList<bool>()) << "goes on beside the settings window";
        finishScan();
        EXPECT_EQ(session->autoCleanReview(), AutoCleanReview::reviewed);
        EXPECT_EQ(trashed().size(), keeps ? 2 : 0);
        EXPECT_EQ(m_settings->state().screenshotAutoClean, keeps ? Period::oneDay : Period::never);
        EXPECT_EQ(nextCheck(), keeps ? Delay(1h) : std::nullopt);
    }
}

TEST_F(AutoCleanScheduleTest, reviewsAnewWhatChangedMeanwhile) {
    // While it was counted.
    open(2, AutoCleanReview::notReviewed);
    session->restartAutoClean();
    parts.scheduler.advance(10ms);
    m_settings->setScreenshotAutoClean(Period::threeDays);
    finishCheck();
    EXPECT_TRUE(reviews.isEmpty());
    finishCheck();
    ASSERT_EQ(reviews.size(), 1);
    EXPECT_EQ(reviews.takeFirst(), std::pair(2, Period::threeDays));

    // While it was shown: neither answer is one to what holds now.
    for (const auto &[keeps, period] : {std::pair(true, Period::oneDay), {false, Period::sevenDays}}) {
        m_settings->setScreenshotAutoClean(period);
        finishCheck();
        EXPECT_TRUE(reviews.isEmpty());
        decision(keeps);
        EXPECT_TRUE(trashed().isEmpty());
        EXPECT_EQ(m_settings->state().screenshotAutoClean, period);
        finishCheck();
        ASSERT_EQ(reviews.size(), 1);
        EXPECT_EQ(reviews.takeFirst(), std::pair(2, period));
    }

    // A session that is gone hears no answer.
    session.reset();
    decision(true);
}
