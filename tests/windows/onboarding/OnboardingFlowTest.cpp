#include "windows/onboarding/OnboardingFlow.h"

#include "platform/linux/LinuxCaptureMarkers.h"
#include "platform/linux/LinuxFolderFiles.h"
#include "screenshots/ScreenshotCaptureDetector.h"
#include "settings/SettingsFixture.h"
#include "support/FakeThumbnails.h"
#include "support/ManualQueue.h"
#include "support/ManualScheduler.h"

#include <QFile>

using namespace tembra;

namespace {

using Folder = OnboardingState::Folder;
using Step = OnboardingStep;

// The flow over real folders; the user, the tool and the shelf are the test's.
class OnboardingFlowTest : public SettingsFixture {
protected:
    OnboardingFlowTest() {
        start();
        restart();
    }

    // What each start of the program does.
    void restart() {
        flow.reset();
        start();
        OnboardingFlow::Hooks hooks{.pickFolder = [this] { return picked; },
                                    .acceptFolder =
                                        [this](const QString &folder, bool adopting) {
                                            return m_settings->grantScreenshotsFolder(folder, !adopting,
                                                                                      false);
                                        },
                                    .suspendFolder = [this] { ++suspensions; },
                                    .resumeFolder = [this] { --suspensions; },
                                    .latestCapture = [this] { return path("shot.png"); }};
        flow = std::make_unique<OnboardingFlow>(
            *m_settings,
            std::make_unique<DesktopScreenshots>(
                desktop, detector, [] { return QStringLiteral("Shot"); }, queue, scheduler),
            thumbnails, m_root.path(), std::move(hooks));
        QObject::connect(flow.get(), &OnboardingFlow::finished, flow.get(), [this] { ++endings; });
        flow->begin();
    }
    // Lets what works in the background come to its end.
    void settle() {
        queue.runAll();
        scheduler.settle();
    }
    void toFolderStep() {
        flow->receiveDestination(ScreenshotDestination::toFolder(path("Tool")));
        flow->primary();
    }
    void chooseFolder(const QString &folder) {
        picked = folder;
        toFolderStep();
        flow->secondary();
        settle();
    }
    [[nodiscard]] QString putOnDesktop(const char *name) const {
        return writeFile(desktop + u'/' + QString::fromUtf8(name));
    }
    [[nodiscard]] const OnboardingState &state() const { return flow->state(); }

    const QString desktop = makeFolder("Desktop");
    const LinuxFolderFiles folderFiles{m_files};
    const LinuxCaptureMarkers markers;
    const ScreenshotCaptureDetector detector{markers, folderFiles};
    ManualScheduler scheduler;
    ManualQueue queue;
    FakeThumbnails thumbnails;
    std::optional<QString> picked;
    int suspensions = 0;
    int endings = 0;
    std::unique_ptr<OnboardingFlow> flow;
};

} // namespace

TEST_F(OnboardingFlowTest, theToolsOwnFolderIsSuggestedAndTheToolIsLeftAlone) {
    EXPECT_EQ(state().step, Step::introduction);
    toFolderStep();
    EXPECT_EQ(state().step, Step::folder);
    EXPECT_EQ(state().path, QStringLiteral("~/Tool"));
    EXPECT_FALSE(m_settings->state().hasFolderAccess) << "nothing is granted without an answer";
    flow->primary();
    settle();
    EXPECT_EQ(m_settings->state().screenshotsFolder, path("Tool")) << "the folder is made for it";
    EXPECT_TRUE(m_systemFolders.isEmpty());
    EXPECT_EQ(state().step, Step::firstScreenshot);
}

TEST_F(OnboardingFlowTest, aChosenFolderBecomesTheToolsUnlessItWas) {
    chooseFolder(makeFolder("Mine"));
    EXPECT_EQ(m_systemFolders, QStringList(path("Mine")));
    EXPECT_EQ(state().step, Step::firstScreenshot);

    flow->show(Step::folder);
    EXPECT_EQ(state().path, QStringLiteral("~/Mine"));
    picked = makeFolder("Tool");
    flow->secondary();
    settle();
    EXPECT_EQ(m_systemFolders, QStringList(path("Mine"))) << "it came from the tool";
    EXPECT_EQ(m_settings->state().screenshotsFolder, path("Tool"));
}

TEST_F(OnboardingFlowTest, whereNothingCanBeSuggestedTheFirstButtonAsks) {
    for (const auto &destination :
         {ScreenshotDestination::toClipboard(), ScreenshotDestination::toOther(QStringLiteral("mail")),
          ScreenshotDestination::toFolder(writeFile(path("file")))}) {
        flow->receiveDestination(destination);
        EXPECT_EQ(state().path, QString());
    }
    flow->primary();
    flow->primary();
    EXPECT_EQ(state().step, Step::folder) << "the user changed their mind";
    picked = makeFolder("Mine");
    flow->primary();
    settle();
    EXPECT_EQ(state().step, Step::firstScreenshot);
}

TEST_F(OnboardingFlowTest, aFailureIsToldAndChangesNothing) {
    m_systemFolderFails = true;
    chooseFolder(makeFolder("Mine"));
    EXPECT_EQ(state().step, Step::folder);
    EXPECT_EQ(state().note, error().message);
    EXPECT_TRUE(state().isFailure);
    EXPECT_FALSE(m_settings->state().hasFolderAccess);
    m_systemFolderFails = false;
    flow->secondary();
    settle();
    EXPECT_EQ(state().step, Step::firstScreenshot);
    EXPECT_EQ(state().note, QString());
}

TEST_F(OnboardingFlowTest, whatLiesOnTheDesktopIsMovedOnlyWhenTheUserSaysSo) {
    const QString shot = putOnDesktop("Screenshot from 2026-11-21 10-15-22.png");
    const QString other = putOnDesktop("holiday.png");
    chooseFolder(makeFolder("Mine"));
    EXPECT_EQ(state().folder, Folder::offeringMove);
    EXPECT_EQ(state().screenshotsOnDesktop, 1);
    flow->primary();
    EXPECT_EQ(suspensions, 1) << "what is moved is no new capture";
    flow->primary();
    flow->show(Step::introduction);
    EXPECT_EQ(state().folder, Folder::moving) << "it cannot be left half-way";
    settle();
    EXPECT_EQ(suspensions, 0);
    EXPECT_FALSE(QFile::exists(shot));
    EXPECT_TRUE(QFile::exists(other));
    EXPECT_EQ(state().step, Step::firstScreenshot);
    EXPECT_EQ(state().note, QStringLiteral("1 screenshots were moved from the Desktop."));
}

TEST_F(OnboardingFlowTest, whatLiesOnTheDesktopStaysWhereItIsLeft) {
    const QString shot = putOnDesktop("Screenshot from 2026-11-21 10-15-22.png");
    chooseFolder(desktop);
    EXPECT_EQ(state().step, Step::firstScreenshot) << "it lies in the chosen folder";
    flow->show(Step::folder);
    picked = makeFolder("Mine");
    flow->secondary();
    settle();
    EXPECT_EQ(state().folder, Folder::offeringMove);
    flow->secondary();
    EXPECT_EQ(state().step, Step::firstScreenshot);
    EXPECT_TRUE(QFile::exists(shot));
}

TEST_F(OnboardingFlowTest, theFirstCaptureIsShownAndEndsIt) {
    chooseFolder(makeFolder("Mine"));
    flow->primary();
    EXPECT_EQ(endings, 0) << "nothing is caught";
    m_settings->markFirstScreenshotCaught();
    EXPECT_TRUE(state().hasCaught);
    EXPECT_TRUE(thumbnails.answer(path("shot.png")));
    EXPECT_FALSE(state().capture.isNull());
    flow->show(Step::folder);
    flow->primary();
    EXPECT_TRUE(state().hasCaught) << "looking back does not undo it";
    flow->primary();
    EXPECT_EQ(endings, 1);
}

TEST_F(OnboardingFlowTest, isTakenUpWhereItWasLeft) {
    toFolderStep();
    restart();
    EXPECT_EQ(state().step, Step::introduction);
    chooseFolder(makeFolder("Mine"));
    restart();
    EXPECT_EQ(state().step, Step::firstScreenshot);
    flow->show(Step::introduction);
    flow->begin();
    EXPECT_EQ(state().step, Step::introduction) << "within one run the user's place is kept";
    flow->show(Step::firstScreenshot);
    flow->skip();
    EXPECT_EQ(endings, 1);
}

TEST_F(OnboardingFlowTest, aFolderChosenInTheShelfIsAnAnswerToo) {
    toFolderStep();
    flow->show(Step::firstScreenshot);
    EXPECT_EQ(state().step, Step::folder) << "there is nothing to wait for yet";
    ASSERT_TRUE(m_settings->grantScreenshotsFolder(makeFolder("Mine"), true, false));
    EXPECT_EQ(state().step, Step::firstScreenshot);
    m_settings->setShowFileNames(false);
    EXPECT_EQ(state().step, Step::firstScreenshot);
}
