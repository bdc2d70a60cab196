#include "screenshots/ScreenshotAutoCopy.h"

#include "screenshots/ScreenshotAutoOpen.h"
#include "support/FakePasteboard.h"
#include "support/Files.h"
#include "support/ManualQueue.h"
#include "support/ManualScheduler.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace std::chrono_literals;
using namespace tembra;

namespace {

constexpr Instant switchedOn{1'000'000s};

// The configured folder is reached through a link, as the watcher may see it.
class ReactionTest : public testing::Test {
protected:
    ReactionTest() {
        QDir().mkpath(path("shots/sub/deeper"));
        QDir().mkpath(path("other"));
        QFile::link(path("shots"), path("link"));
    }
    [[nodiscard]] QString path(const QString &name) const { return m_root.filePath(name); }
    [[nodiscard]] QString path(const char *name) const { return path(QString::fromUtf8(name)); }
    [[nodiscard]] Shot shot(const char *name, Instant createdAt = switchedOn + 1s,
                            const char *stamp = "v1") const {
        return {.location = path(name), .stamp = QString::fromUtf8(stamp), .createdAt = createdAt};
    }
    static bool isCapture(const QString &file) { return !file.contains(QStringLiteral("photo")); }

    const QTemporaryDir m_root;
};

class ScreenshotAutoCopyTest : public ReactionTest {
protected:
    void SetUp() override {
        copy.configure(true, path("shots"), switchedOn);
        copy.onFinished = [this](ScreenshotAutoCopy::Outcome outcome) { outcomes.push_back(outcome); };
    }
    // Everything that is loading arrives.
    void load() {
        queue.runAll();
        scheduler.settle();
    }
    void receive(const std::vector<Shot> &shots, bool continuing = false) {
        copy.receive(shots, continuing);
        load();
    }
    [[nodiscard]] QStringList copied() const {
        QStringList names;
        for (const Pasteboard::Item &item : pasteboard.items) {
            names += QFileInfo(item.path).fileName();
            EXPECT_EQ(item.type, QStringLiteral("public.png"));
        }
        if (!pasteboard.items.empty()) {
            EXPECT_EQ(pasteboard.items.back().data, pasteboard.items.back().path.toUtf8());
        }
        return names;
    }

    FakePasteboard pasteboard;
    ManualQueue queue;
    ManualScheduler scheduler;
    QStringList unreadable;
    std::vector<ScreenshotAutoCopy::Outcome> outcomes;
    ScreenshotAutoCopy copy{{.pasteboard = pasteboard,
                             .queue = queue,
                             .scheduler = scheduler,
                             .prepare = [this](const QString &file) -> std::optional<ScreenshotImageData> {
                                 if (unreadable.contains(QFileInfo(file).fileName()))
                                     return std::nullopt;
                                 return ScreenshotImageData{file.toUtf8(), QStringLiteral("public.png")};
                             },
                             .isCapture = isCapture}};
};

QStringList list(const char *names) {
    return QString::fromUtf8(names).split(u' ', Qt::SkipEmptyParts);
}

constexpr auto wasCopied = ScreenshotAutoCopy::Outcome::copied;
constexpr auto wasPostponed = ScreenshotAutoCopy::Outcome::postponed;

} // namespace

TEST_F(ReactionTest, chooseWhatIsNewAndTheirs) {
    const struct {
        const char *name;
        Instant createdAt;
        bool isCopied;
        bool isOpened;
    } cases[]{
        {"shots/a.png", switchedOn + 1ns, true, true},
        {"shots/b.png", switchedOn, false, true},
        {"shots/c.png", switchedOn - 1ns, false, false},
        {"shots/d.JPG", switchedOn + 1s, true, true},
        {"shots/e.jpeg", switchedOn + 1s, true, true},
        {"shots/f.heic", switchedOn + 1s, true, false},
        {"shots/g.tiff", switchedOn + 1s, true, false},
        {"shots/h.mov", switchedOn + 1s, false, false},
        {"shots/i.mp4", switchedOn + 1s, false, false},
        {"shots/j.webm", switchedOn + 1s, false, false},
        {"shots/photo.png", switchedOn + 1s, false, false},
        {"shots/sub/k.png", switchedOn + 1s, true, true},
        {"shots/sub/deeper/l.png", switchedOn + 1s, false, true},
        {"link/m.png", switchedOn + 1s, true, true},
        {"shots/../other/n.png", switchedOn + 1s, false, false},
        {"other/o.png", switchedOn + 1s, false, false},
        {"shots/gone/p.png", switchedOn + 1s, false, false},
    };
    for (const char *folder : {"shots", "link"}) {
        for (const auto &c : cases) {
            FakePasteboard pasteboard;
            ManualQueue queue;
            ManualScheduler scheduler;
            ScreenshotAutoCopy copy({.pasteboard = pasteboard,
                                     .queue = queue,
                                     .scheduler = scheduler,
                                     .prepare = [](const QString &) { return ScreenshotImageData(); },
                                     .isCapture = isCapture});
            ScreenshotAutoOpen open(isCapture);
            copy.configure(true, path(folder), switchedOn);
            open.configure(true, path(folder), switchedOn);
            const std::vector<Shot> shots{shot(c.name, c.createdAt)};
            for (int round = 0; round < 2; ++round) {
                copy.receive(shots, false);
                EXPECT_EQ(open.take(shots).size(), c.isOpened && round == 0 ? 1U : 0U) << c.name << round;
            }
            EXPECT_EQ(queue.count(), c.isCopied ? 1 : 0) << c.name;
        }
    }
}

TEST_F(ReactionTest, opensWhatIsTakenOnceUntilTheConfigurationChanges) {
    ScreenshotAutoOpen open(isCapture);
    const std::vector<Shot> shots{shot("shots/a.png"), shot("shots/b.png")};
    const struct {
        bool enabled;
        std::optional<QString> folder;
        Instant now;
        std::size_t taken;
    } steps[]{
        {false, path("shots"), switchedOn, 0},      {true, std::nullopt, switchedOn, 0},
        {true, path("shots"), switchedOn, 2},       {true, path("link"), switchedOn + 5s, 0},
        {false, path("shots"), switchedOn + 5s, 0}, {true, path("shots"), switchedOn + 5s, 0},
        {true, path("other"), switchedOn, 0},       {true, path("shots"), switchedOn, 2},
    };
    for (const auto &[enabled, folder, now, taken] : steps) {
        open.configure(enabled, folder, now);
        EXPECT_EQ(open.take(shots).size(), taken) << &taken - &steps[0].taken;
    }
}

TEST_F(ScreenshotAutoCopyTest, aSeriesIsOnTheClipboardInItsOrder) {
    receive({shot("shots/a.png")});
    EXPECT_EQ(copied(), list("a.png"));
    receive({shot("shots/b.png"), shot("shots/c.png")}, true);
    EXPECT_EQ(copied(), list("a.png b.png c.png"));
    copy.configure(true, path("link"), switchedOn + 1h);
    receive({shot("shots/d.png"), shot("shots/a.png")}, true);
    EXPECT_EQ(copied(), list("a.png b.png c.png d.png")) << "the same configuration changes nothing";
    receive({shot("shots/a.png", switchedOn + 2s, "v2")}, true);
    EXPECT_EQ(copied(), list("b.png c.png d.png a.png")) << "another file of the name";
    receive({shot("shots/e.png")});
    EXPECT_EQ(copied(), list("e.png"));
    EXPECT_EQ(outcomes, std::vector(5, wasCopied));

    copy.configure(false, path("shots"), switchedOn);
    copy.configure(true, path("shots"), switchedOn);
    receive({shot("shots/f.png")}, true);
    EXPECT_EQ(copied(), list("f.png")) << "a change of the configuration ends the series";
}

TEST_F(ScreenshotAutoCopyTest, isWrittenOnceWhenTheLastImageIsThere) {
    copy.receive({shot("shots/a.png")}, false);
    copy.receive({shot("shots/b.png"), shot("shots/c.png")}, true);
    EXPECT_EQ(pasteboard.writes, 0);
    unreadable = list("b.png");
    load();
    EXPECT_EQ(copied(), list("a.png c.png"));
    EXPECT_EQ(pasteboard.writes, 1);

    unreadable = list("d.png");
    receive({shot("shots/d.png")});
    EXPECT_EQ(pasteboard.writes, 1) << "nothing to write";
    EXPECT_EQ(outcomes, std::vector{wasCopied});
}

TEST_F(ScreenshotAutoCopyTest, whatIsLoadingIsDroppedWhenItIsOvertaken) {
    const struct {
        const char *what;
        std::function<void()> act;
        const char *copied;
    } cases[]{
        {"the user copies", [this] { pasteboard.takeByAnother(); }, ""},
        {"the user copies and the series goes on",
         [this] {
             pasteboard.takeByAnother();
             copy.receive({shot("shots/b.png")}, true);
         },
         ""},
        {"a new series", [this] { copy.receive({shot("shots/b.png")}, false); }, "b.png"},
        {"the user copies before a new series",
         [this] {
             pasteboard.takeByAnother();
             copy.receive({shot("shots/b.png")}, false);
         },
         "b.png"},
        {"switched off", [this] { copy.configure(false, path("shots"), switchedOn); }, ""},
        {"another folder", [this] { copy.configure(true, path("other"), switchedOn); }, ""},
    };
    for (const auto &[what, act, expected] : cases) {
        copy.configure(false, std::nullopt, switchedOn);
        copy.configure(true, path("shots"), switchedOn);
        pasteboard.items.clear();
        copy.receive({shot("shots/a.png")}, false);
        queue.runAll();
        act();
        load();
        EXPECT_EQ(copied(), list(expected)) << what;
        receive({shot("shots/c.png")}, true);
        EXPECT_FALSE(copied().contains(QStringLiteral("a.png"))) << what;
    }
}

TEST_F(ScreenshotAutoCopyTest, whatIsRefusedIsWrittenLaterUnlessTheClipboardChanged) {
    pasteboard.refuses = true;
    receive({shot("shots/a.png")});
    copy.writePostponed();
    EXPECT_EQ(outcomes, std::vector(2, wasPostponed));
    pasteboard.refuses = false;
    copy.writePostponed();
    copy.writePostponed();
    EXPECT_EQ(copied(), list("a.png"));
    EXPECT_EQ(pasteboard.writes, 1);
    EXPECT_EQ(outcomes.back(), wasCopied);

    const struct {
        const char *what;
        std::function<void()> act;
        const char *copied;
    } cases[]{
        {"the user copies", [this] { pasteboard.takeByAnother(); }, ""},
        {"the series goes on", [this] { copy.receive({shot("shots/b.png")}, true); }, "a.png b.png"},
        {"a new series", [this] { copy.receive({shot("shots/b.png")}, false); }, "b.png"},
        {"switched off", [this] { copy.configure(false, path("shots"), switchedOn); }, ""},
    };
    for (const auto &[what, act, expected] : cases) {
        copy.configure(false, std::nullopt, switchedOn);
        copy.configure(true, path("shots"), switchedOn);
        pasteboard.items.clear();
        pasteboard.refuses = true;
        receive({shot("shots/a.png")});
        pasteboard.refuses = false;
        act();
        copy.writePostponed();
        load();
        EXPECT_EQ(copied(), list(expected)) << what;
    }
}
