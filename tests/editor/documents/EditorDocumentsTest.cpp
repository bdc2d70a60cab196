#include "OpenDocuments.h"
#include "editor/model/ScreenshotEditError.h"

namespace tembra {
namespace {

using EditorDocumentsTest = OpenDocuments;

TEST_F(EditorDocumentsTest, showsTheFirstOneOnceItIsThere) {
    EXPECT_EQ(documents->name(), QStringLiteral("a"));
    EXPECT_EQ(documents->extension(), QStringLiteral(".png"));
    EXPECT_EQ(switches, 1);
    EXPECT_TRUE(documents->canClose());
    EXPECT_FALSE(fullSize) << "the preview was as large";
}

TEST_F(EditorDocumentsTest, decodesWhatThePreviewReducesForTheCurrentOneAlone) {
    writeFile(path(QStringLiteral("large.png")), pictureBytes("png", QSize(2600, 20)));
    documents->open(shot(QStringLiteral("large.png")), {});
    store.queue.runAll();
    store.scheduler.settle();
    EXPECT_LT(documents->image().width(), 2600);
    settle();
    EXPECT_EQ(fullSize, QSize(2600, 20));
    EXPECT_EQ(documents->image().size(), QSize(2600, 20));

    fullSize.reset();
    open(QStringLiteral("a.png"));
    documents->open(shot(QStringLiteral("large.png")), {});
    store.queue.runAll();
    store.scheduler.settle();
    open(QStringLiteral("a.png"));
    EXPECT_FALSE(fullSize);
}

TEST_F(EditorDocumentsTest, keepsUnsavedEditsOfTheOnesThatAreLeft) {
    draw();
    draw();
    EditorDocument *const left = documents->current();
    documents->open(shot(QStringLiteral("b.png")), {});
    EXPECT_EQ(documents->current(), left) << "until the other one is there";
    EXPECT_TRUE(documents->isOpening());
    settle();
    EXPECT_EQ(documents->name(), QStringLiteral("b"));
    open(QStringLiteral("c.png"));
    EXPECT_EQ(unsaved(), QStringList(QStringLiteral("a.png"))) << "b was not edited";

    draw();
    EXPECT_EQ(unsaved(), QStringList({QStringLiteral("a.png"), QStringLiteral("c.png")}));
    documents->open(shot(QStringLiteral("a.png")), {});
    EXPECT_EQ(documents->current(), left) << "at once";
    edits().history().undo();
    EXPECT_EQ(edits().annotations().size(), 1);
    EXPECT_EQ(unsaved(), QStringList({QStringLiteral("c.png"), QStringLiteral("a.png")}));
    EXPECT_FALSE(documents->canClose());

    documents->discard(documents->unsavedDocuments().front().id);
    EXPECT_EQ(unsaved(), QStringList(QStringLiteral("a.png")));
    documents->discardAll();
    EXPECT_EQ(documents->current(), nullptr);
    EXPECT_TRUE(documents->canClose());
}

TEST_F(EditorDocumentsTest, showsTheLastOfThoseThatAreOpenedAtOnce) {
    documents->open(shot(QStringLiteral("b.png")), {});
    documents->open(shot(QStringLiteral("c.png")), {});
    settle();
    EXPECT_EQ(documents->name(), QStringLiteral("c"));
    EXPECT_EQ(switches, 2);
    EXPECT_TRUE(failures.empty());
    EXPECT_EQ(QDir(path(QStringLiteral("edits"))).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 2)
        << "b was not even read";

    documents->open(shot(QStringLiteral("b.png")), {});
    documents->open(shot(QStringLiteral("c.png")), {});
    settle();
    EXPECT_EQ(documents->name(), QStringLiteral("c")) << "the one that is there is as good as any";
    EXPECT_FALSE(documents->isOpening());
}

TEST_F(EditorDocumentsTest, offersACopyOfWhatAnotherProgramChanged) {
    draw();
    documents->save();
    settle();
    open(QStringLiteral("b.png"));
    const QByteArray foreign = writeOutside(QStringLiteral("a.png"));
    writeFile(path(QStringLiteral("a copy.png")), QByteArrayLiteral("somebody's"));
    open(QStringLiteral("a.png"));
    ASSERT_EQ(failures.size(), 1);
    EXPECT_EQ(failures.front().offer, Offer::copyAsNew);
    EXPECT_EQ(failures.front().fileName, QStringLiteral("a.png"));
    EXPECT_EQ(documents->name(), QStringLiteral("b"));

    documents->copyAsNew();
    settle();
    EXPECT_EQ(documents->name(), QStringLiteral("a copy 1"));
    EXPECT_EQ(contentOf(path(QStringLiteral("a copy 1.png"))), foreign);
    EXPECT_EQ(contentOf(path(QStringLiteral("a copy.png"))), QByteArrayLiteral("somebody's"));
    EXPECT_EQ(contentOf(path(QStringLiteral("a.png"))), foreign);
    documents->copyAsNew();
    settle();
    EXPECT_EQ(files().size(), 4) << "once is enough";
}

TEST_F(EditorDocumentsTest, staysWithTheCurrentOneWhenAnotherCannotBeOpened) {
    writeFile(path(QStringLiteral("broken.png")), QByteArrayLiteral("no picture"));
    draw();
    open(QStringLiteral("broken.png"));
    Shot gone = shot(QStringLiteral("b.png"));
    QFile::remove(gone.location);
    documents->open(gone, {});
    settle();
    ASSERT_EQ(failures.size(), 2);
    EXPECT_EQ(failures[0].error, ScreenshotEditError::of(ScreenshotEditError::unsupportedType));
    EXPECT_FALSE(failures[1].error.message.isEmpty());
    EXPECT_EQ(failures[1].offer, Offer::none);
    EXPECT_EQ(unsaved(), QStringList(QStringLiteral("a.png")));
}

TEST_F(EditorDocumentsTest, tellsOfWhatOtherProgramsDoToTheFile) {
    documents->checkFile();
    settle();
    EXPECT_TRUE(told.isEmpty());
    writeOutside(QStringLiteral("a.png"));
    documents->checkFile();
    documents->checkFile();
    settle();
    documents->checkFile();
    settle();
    EXPECT_EQ(std::exchange(told, {}), QStringList(QStringLiteral("can be reloaded"))) << "once";

    draw();
    writeOutside(QStringLiteral("a.png"));
    documents->checkFile();
    settle();
    EXPECT_EQ(std::exchange(told, {}), QStringList(QStringLiteral("changed")));
    QFile::rename(path(QStringLiteral("a.png")), path(QStringLiteral(".hidden")));
    documents->checkFile();
    settle();
    documents->checkFile();
    settle();
    EXPECT_EQ(std::exchange(told, {}), QStringList(QStringLiteral("gone")));
    EXPECT_EQ(unsaved(), QStringList(QStringLiteral("a.png")));
    writeFile(path(QStringLiteral("a.png")), pictureBytes("png", QSize(80, 60)));
    documents->checkFile();
    settle();
    EXPECT_EQ(told, QStringList(QStringLiteral("restored")));
}

TEST_F(EditorDocumentsTest, followsAFileThatIsRenamedOutside) {
    draw();
    QFile::rename(path(QStringLiteral("a.png")), path(QStringLiteral("renamed.png")));
    documents->checkFile();
    settle();
    EXPECT_EQ(documents->name(), QStringLiteral("renamed"));
    EXPECT_TRUE(told.isEmpty());
    documents->save();
    settle();
    EXPECT_EQ(told, QStringList({QStringLiteral("begin renamed.png"), QStringLiteral("finish renamed.png")}));
    EXPECT_EQ(files(), QStringList(QStringLiteral("renamed.png")));
}

TEST_F(EditorDocumentsTest, looksAtTheFileOfADocumentThatIsShownAgain) {
    draw();
    open(QStringLiteral("b.png"));
    writeOutside(QStringLiteral("a.png"));
    open(QStringLiteral("a.png"));
    EXPECT_EQ(told, QStringList(QStringLiteral("changed")));
    EXPECT_EQ(edits().annotations().size(), 1);

    documents->reload();
    settle();
    EXPECT_TRUE(edits().annotations().empty()) << "nothing was saved, so it is a new image";
    EXPECT_EQ(documents->image().size(), QSize(21, 20));
    EXPECT_TRUE(documents->canClose());
}

TEST_F(EditorDocumentsTest, keepsTheEditsWhenReloadingFails) {
    draw();
    documents->save();
    settle();
    draw();
    writeOutside(QStringLiteral("a.png"));
    documents->reload();
    settle();
    ASSERT_EQ(failures.size(), 1);
    EXPECT_EQ(failures.front().offer, Offer::copyAsNew);
    EXPECT_EQ(edits().annotations().size(), 2);
    documents->copyAsNew();
    settle();
    EXPECT_EQ(documents->name(), QStringLiteral("a copy"));
    EXPECT_EQ(unsaved(), QStringList(QStringLiteral("a.png")));
}

TEST_F(EditorDocumentsTest, goesToTheTrashAfterWhatIsUnderWay) {
    draw();
    documents->save();
    QString trashed;
    trash = [&](const QString &path, const ScreenshotFileIdentity &identity) {
        EXPECT_EQ(identity, ScreenshotFileIdentity::of(path, *platform.fileFacts->facts(path)));
        trashed = path;
        return Result<void>();
    };
    documents->moveToTrash();
    EXPECT_TRUE(trashed.isEmpty());
    settle();
    EXPECT_EQ(trashed, path(QStringLiteral("a.png")));
    EXPECT_EQ(documents->current(), nullptr);
    EXPECT_EQ(told.back(), QStringLiteral("removed a.png"));
}

TEST_F(EditorDocumentsTest, staysWhenTheTrashRefusesIt) {
    draw();
    trash = [](const QString &, const ScreenshotFileIdentity &) -> Result<void> {
        return failure({.message = QStringLiteral("It is pinned.")});
    };
    documents->moveToTrash();
    ASSERT_EQ(failures.size(), 1);
    EXPECT_EQ(failures.front().error.message, QStringLiteral("It is pinned."));
    EXPECT_EQ(unsaved(), QStringList(QStringLiteral("a.png")));
    EXPECT_TRUE(told.isEmpty());
}

TEST_F(EditorDocumentsTest, endsWhileEverythingIsUnderWay) {
    draw();
    documents->save([](const Result<void> &) { FAIL(); });
    documents->rename(QStringLiteral("z"), [](const Result<void> &) { FAIL(); });
    documents->saveCopy(path(QStringLiteral("copy.png")), [](const Result<QString> &) { FAIL(); });
    documents->copyImage([](const Result<void> &) { FAIL(); });
    documents->dragImage([](const Result<EditorDraggedImage> &) { FAIL(); });
    documents->checkFile();
    documents->open(shot(QStringLiteral("b.png")), {});
    EXPECT_FALSE(documents->canClose());
    documents.reset();
    EXPECT_EQ(told, QStringList({QStringLiteral("begin a.png"), QStringLiteral("finish nothing")}));
    settle();
    EXPECT_EQ(switches, 1);
    EXPECT_EQ(files(), QStringList({QStringLiteral("a.png"), QStringLiteral("b.png")}));

    // What was on its way to the file has arrived there.
    make();
    open(QStringLiteral("a.png"));
    EXPECT_EQ(edits().annotations().size(), 1);
}

TEST_F(EditorDocumentsTest, mayEndOnceEverythingIsSaved) {
    draw();
    documents->saveAll([this](const Result<void> &saved) {
        EXPECT_TRUE(saved);
        EXPECT_TRUE(documents->canClose());
        documents.reset();
    });
    settle();
    EXPECT_EQ(documents, nullptr);
    EXPECT_EQ(told, QStringList({QStringLiteral("begin a.png"), QStringLiteral("finish a.png")}));
}

} // namespace
} // namespace tembra
