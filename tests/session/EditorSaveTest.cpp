#include "session/LiveSession.h"

#include <sys/stat.h>

using namespace std::chrono_literals;
using namespace tembra;

namespace {

ScreenshotFileIdentity file(std::uint64_t inode, Instant createdAt = {}) {
    return {ScreenshotFileIdentity::Resource{{.volume = 1, .inode = inode}, createdAt}};
}

class EditorSaveTest : public testing::Test, protected LiveSession {
protected:
    // A pinned and selected screenshot that is in the tray too, and another screenshot.
    void SetUp() override {
        names = writeOld(2);
        ASSERT_TRUE(settings.setScreenshotsPinned({path(names.first())}, true));
        start();
        session.clipboard.add(0, {path(names.last()), path(names.first())});
        select({names.first()});
    }
    // The new bytes take the name at once, as the date of the file that was is recorded.
    [[nodiscard]] QString saved(const QString &name) const {
        const QString created = path(QStringLiteral("unnamed"));
        writeFile(created, pictureBytes("png", {5, 5}));
        const auto madeAt = session.folderShelf().shots.front().createdAt;
        EXPECT_TRUE(parts.files.recordCreationDate(created, madeAt));
        EXPECT_EQ(::rename(qPrintable(created), qPrintable(path(name))), 0);
        return path(name);
    }

    QStringList names;
    const QString otherName = nameOf(900);
};

} // namespace

TEST(EditorSaveContext, isReplacedByWhatTookTheScreenshotsPlace) {
    const Instant madeAt{5s};
    const EditorSaveContext context{.shot = {.identity = file(1, madeAt)},
                                    .path = QStringLiteral("/shots/a.png"),
                                    .folder = QStringLiteral("/shots"),
                                    .createdAt = madeAt};
    const struct {
        const char *what;
        const char *path;
        ScreenshotFileIdentity identity;
        std::optional<Instant> createdAt;
        bool oldFileStands;
        bool isReplaced;
    } cases[]{
        {"written in place", "/shots/a.png", file(1, madeAt), madeAt, true, true},
        {"replaced in place", "/shots/a.png", file(2, madeAt), madeAt, false, true},
        {"replaced in place without its date", "/shots/a.png", file(2), Instant(), false, true},
        {"renamed", "/shots/b.png", file(1, madeAt), madeAt, false, true},
        {"moved", "/other/a.png", file(1, madeAt), madeAt, false, true},
        {"anew under another name", "/shots/b.png", file(2, madeAt), madeAt, false, true},
        {"anew elsewhere", "/other/b.png", file(2, madeAt), madeAt, false, false},
        {"another file beside a lost one", "/shots/b.png", file(2), Instant(6s), false, false},
        {"without a date", "/shots/b.png", file(2), std::nullopt, false, false},
        {"a copy beside", "/shots/b.png", file(2, madeAt), madeAt, true, false},
        {"a second name", "/shots/b.png", file(1, madeAt), madeAt, true, false},
    };
    for (const auto &c : cases)
        EXPECT_EQ(context.isReplacedBy({QString::fromUtf8(c.path), c.identity, c.createdAt, c.oldFileStands}),
                  c.isReplaced)
            << c.what;
}

TEST_F(EditorSaveTest, trayPinAndSelectionFollowWhatTookThePlace) {
    const auto asIs = [] {};
    const struct {
        const char *what;
        // Before the save, and the save.
        std::function<void()> before;
        std::function<std::optional<QString>()> save;
        QString expected;
        bool follows;
    } cases[]{
        {"in place", asIs, [this] { return saved(names.first()); }, names.first(), true},
        {"renamed", asIs,
         [this] {
             EXPECT_TRUE(QFile::rename(path(names.first()), path(otherName)));
             return path(otherName);
         },
         otherName, true},
        {"another name, the old one gone", asIs,
         [this] {
             const QString file = saved(otherName);
             QFile::remove(path(names.first()));
             return file;
         },
         otherName, true},
        {"renamed by the user just before, then in place",
         [this] { EXPECT_TRUE(QFile::rename(path(names.first()), path(otherName))); },
         [this] { return saved(otherName); }, otherName, true},
        {"a copy beside", asIs, [this] { return saved(otherName); }, names.first(), false},
        {"nothing", asIs, [] { return std::nullopt; }, names.first(), false},
        {"told of, but not there", asIs, [this] { return path(otherName); }, names.first(), false},
        {"in place, but gone again", asIs,
         [this] {
             QFile::remove(path(names.first()));
             return path(names.first());
         },
         names.first(), false},
    };
    for (const auto &[what, before, save, expected, follows] : cases) {
        SCOPED_TRACE(what);
        const Shot shot = shots({names.first()}).front();
        before();
        session.beginEditorSave(shot);
        EXPECT_TRUE(session.isEditorSaving());
        readFolder();
        session.finishEditorWrite(save());
        parts.scheduler.settle();
        EXPECT_FALSE(session.isEditorSaving());

        const ClipboardEntry entry = session.clipboard.entries().back();
        EXPECT_EQ(entry.lastKnownPath, path(expected));
        EXPECT_EQ(session.clipboard.entries().front().lastKnownPath, path(names.last()));
        EXPECT_EQ(settings.pinnedScreenshotPaths(), QSet{path(expected)});
        EXPECT_EQ(session.selected.contains(shot.identity), !follows || entry.identity == shot.identity);
        EXPECT_EQ(session.selected, QSet{entry.identity});
        EXPECT_TRUE(errors.isEmpty());
        settle();
        settle();
        EXPECT_EQ(selected(), QFile::exists(path(expected)) ? QStringList(expected) : QStringList());

        for (const QString &name : filesIn(folder))
            QFile::remove(path(name));
        ASSERT_TRUE(settings.setScreenshotsPinned(settings.pinnedScreenshotPaths().values(), false));
        const QList<QUuid> tray = session.clipboard.order();
        session.clipboard.removeReferences({tray.cbegin(), tray.cend()});
        SetUp();
    }
}

TEST_F(EditorSaveTest, aPinThatCannotFollowIsTold) {
    session.beginEditorSave(shots({names.first()}).front());
    unpinnable = {path(names.first())};
    session.finishEditorWrite(saved(names.first()));
    ASSERT_EQ(errors.size(), 1);
    EXPECT_EQ(errors.first().first, QStringLiteral("Couldn’t update pinned screenshot"));
    EXPECT_EQ(errors.first().second, QStringLiteral("It does not work."));
    EXPECT_TRUE(QFile::exists(path(names.first())));
    EXPECT_FALSE(session.isEditorSaving());
}

TEST_F(EditorSaveTest, theFolderIsReadAgainAfterAMoment) {
    for (const bool isWritten : {true, false}) {
        session.beginEditorSave(shots({names.first()}).front());
        session.finishEditorWrite(isWritten ? std::optional(path(names.first())) : std::nullopt);
        const auto delay = isWritten ? 350ms : 80ms;
        parts.scheduler.advance(delay - 1ms);
        EXPECT_EQ(scanQueue.count(), 0) << isWritten;
        parts.scheduler.advance(1ms);
        EXPECT_EQ(scanQueue.count(), 1) << isWritten;
        settle();
    }
}
