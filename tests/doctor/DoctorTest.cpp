#include "doctor/Doctor.h"

#include "platform/linux/LinuxTrash.h"
#include "support/FakeDesktop.h"
#include "support/FakeFolderEvents.h"
#include "support/FakeScreenCapturePreferences.h"
#include "support/FakeTextRecognizer.h"
#include "support/ManualQueue.h"
#include "support/ManualScheduler.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace tembra;

using State = Finding::State;

namespace {

class OneVolume final : public Volumes {
public:
    bool isLocal = true;

    [[nodiscard]] Result<Volume> volumeOf(const QString &) const override {
        return Volume{.mountPoint = u"/"_s, .root = u"/"_s, .isLocal = isLocal};
    }
    [[nodiscard]] std::optional<QString> mountPointOf(const Volume &volume) const override {
        return volume.mountPoint;
    }
};

class DoctorTest : public testing::Test {
protected:
    void examine() {
        told.reset();
        doctor.examine({.folder = folder.path()},
                       [this](Doctor::Checks checks) { told = std::move(checks); });
        queue.runAll();
        scheduler.advance(0ms);
    }
    [[nodiscard]] Finding finding(const QString &id) const {
        const auto found = std::ranges::find(*told, id, &DoctorCheck::id);
        return found == told->end() ? Finding{State::broken, u"not examined"_s, {}} : found->finding;
    }
    [[nodiscard]] QStringList leftovers() const {
        return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden);
    }

    QTemporaryDir folder;
    QTemporaryDir trashFolder;
    FakeFolderEvents events;
    FakePanelWindows panels;
    FakeDisplays displays;
    LinuxFileFactsReader facts;
    LinuxTrash trash{facts, trashFolder.filePath(u"Trash"_s)};
    OneVolume volumes;
    FakeTextRecognizer recognizer;
    ManualScheduler scheduler;
    ManualQueue queue;
    Doctor doctor{{.events = events,
                   .panels = panels,
                   .displays = displays,
                   .trash = trash,
                   .volumes = volumes,
                   .recognizer = recognizer,
                   .scheduler = scheduler,
                   .queue = queue,
                   .folders = {.home = folder.path()},
                   .preferences = [] { return std::make_unique<FakeScreenCapturePreferences>(); },
                   .desktop =
                       [] {
                           return DesktopFindings{.noFolderEvents = {State::broken, u"unnoticed"_s, {}},
                                                  .missingLanguages = {State::limited, u"%1 %2"_s, u"%1"_s}};
                       },
                   .userVolumes = [this] { return QStringList{folder.path()}; }}};
    std::optional<Doctor::Checks> told;
};

} // namespace

TEST_F(DoctorTest, aFileThatIsNoticedMeansThatChangesAre) {
    examine();
    EXPECT_EQ(leftovers().size(), 1) << "the file to be noticed";
    events.sendDirectory(FolderEvents::write);
    scheduler.advance(0ms);
    scheduler.advance(1s);
    ASSERT_TRUE(told);
    EXPECT_EQ(finding(u"events"_s).state, State::ok);
    EXPECT_EQ(finding(u"trash"_s).state, State::ok);
    EXPECT_EQ(std::ranges::count(*told, u"trash"_s, &DoctorCheck::id), 1) << "one volume is tried once";
    EXPECT_TRUE(leftovers().isEmpty());
    EXPECT_TRUE(QDir(trashFolder.filePath(u"Trash/files"_s)).entryList(QDir::Files | QDir::Hidden).isEmpty());
}

TEST_F(DoctorTest, silenceMeansThatChangesGoUnnoticed) {
    examine();
    scheduler.advance(3s);
    scheduler.advance(1s);
    ASSERT_TRUE(told);
    EXPECT_EQ(finding(u"events"_s).text, u"unnoticed"_s);
    EXPECT_TRUE(leftovers().isEmpty());
}

TEST_F(DoctorTest, onlyTheLastOneWhoAsksIsTold) {
    bool wasFirstTold = false;
    doctor.examine({.folder = folder.path()}, [&](const Doctor::Checks &) { wasFirstTold = true; });
    examine();
    scheduler.advance(10s);
    scheduler.advance(1s);
    EXPECT_TRUE(told);
    EXPECT_FALSE(wasFirstTold);

    // Also while a file is waited for.
    examine();
    doctor.examine({.folder = folder.path()}, [&](const Doctor::Checks &) { wasFirstTold = true; });
    scheduler.advance(10s);
    EXPECT_FALSE(told);
    EXPECT_FALSE(wasFirstTold);
    queue.runAll();
    scheduler.advance(10s);
    scheduler.advance(1s);
    EXPECT_FALSE(told);
    EXPECT_TRUE(wasFirstTold);
    EXPECT_TRUE(leftovers().isEmpty());
}
