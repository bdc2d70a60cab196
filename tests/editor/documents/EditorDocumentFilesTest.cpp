#include "OpenDocuments.h"
#include "editor/model/ScreenshotEditError.h"

namespace tembra {
namespace {

// Saves and renames.
class EditorDocumentFilesTest : public OpenDocuments {
protected:
    EditorSaving::Completion count(int &successes) {
        return [&successes](const Result<void> &result) { successes += result.has_value() ? 1 : 100; };
    }
};

TEST_F(EditorDocumentFilesTest, savesAndTellsTheShelfBeforeAndAfter) {
    int successes = 0;
    documents->save(count(successes));
    EXPECT_EQ(successes, 1) << "there was nothing to save";
    draw();
    const ScreenshotFileIdentity before = documents->current()->loaded.identity;
    documents->save(count(successes));
    EXPECT_FALSE(documents->canClose());
    settle();
    EXPECT_EQ(successes, 2);
    EXPECT_EQ(told, QStringList({QStringLiteral("begin a.png"), QStringLiteral("finish a.png")}));
    EXPECT_TRUE(documents->canClose());
    EXPECT_TRUE(edits().history().canUndo());

    const Shot saved = documents->current()->shot();
    EXPECT_EQ(saved.identity, shot(QStringLiteral("a.png")).identity);
    EXPECT_NE(saved.identity, before);
    ASSERT_TRUE(store.store.badges().contains(saved.identity));
    EXPECT_TRUE(saved.hasRevision(store.store.badges().value(saved.identity)));
    documents->checkFile();
    settle();
    EXPECT_EQ(told.size(), 2) << "our own writes are nobody else's";
}

TEST_F(EditorDocumentFilesTest, leavesWhatIsEditedDuringASaveUnsaved) {
    int successes = 0;
    draw();
    documents->save(count(successes));
    draw();
    EXPECT_EQ(unsaved().size(), 1);
    documents->checkFile();
    settle();
    EXPECT_EQ(unsaved(), QStringList(QStringLiteral("a.png")));
    EXPECT_EQ(edits().savedRecord().annotations.size(), 1);

    // A save that is asked for while another runs comes after it, if there is anything new by then.
    documents->save(count(successes));
    draw();
    documents->save(count(successes));
    documents->save(count(successes));
    edits().history().undo();
    settle();
    EXPECT_EQ(successes, 4);
    EXPECT_EQ(edits().savedRecord().annotations.size(), 2);
    EXPECT_EQ(told.count(QStringLiteral("begin a.png")), 2);
    EXPECT_TRUE(documents->canClose());
    EXPECT_TRUE(failures.empty());
}

TEST_F(EditorDocumentFilesTest, savesWhatIsLeftMeanwhile) {
    draw();
    documents->save();
    open(QStringLiteral("b.png"));
    EXPECT_TRUE(unsaved().isEmpty());
    draw();
    open(QStringLiteral("c.png"));
    open(QStringLiteral("a.png"));
    draw();
    int successes = 0;
    documents->saveAll(count(successes));
    settle();
    EXPECT_EQ(successes, 1);
    EXPECT_TRUE(documents->canClose());
    EXPECT_EQ(told, QStringList({QStringLiteral("begin a.png"), QStringLiteral("finish a.png"),
                                 QStringLiteral("begin b.png"), QStringLiteral("finish b.png"),
                                 QStringLiteral("begin a.png"), QStringLiteral("finish a.png")}));
    documents->saveAll(count(successes));
    EXPECT_EQ(successes, 2);
}

TEST_F(EditorDocumentFilesTest, losesNothingWhenASaveFails) {
    draw();
    const QByteArray foreign = writeOutside(QStringLiteral("a.png"));
    open(QStringLiteral("b.png"));
    draw();
    Result<void> outcome;
    documents->saveAll([&](const Result<void> &result) { outcome = result; });
    settle();
    const Error changed = ScreenshotEditError::of(ScreenshotEditError::changedBeforeSaving);
    ASSERT_EQ(failures.size(), 1);
    EXPECT_EQ(failures.front().error, changed);
    EXPECT_EQ(failures.front().offer, Offer::saveCopy);
    EXPECT_EQ(failures.front().fileName, QStringLiteral("a.png"));
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.error(), changed);
    EXPECT_EQ(told, QStringList({QStringLiteral("begin a.png"), QStringLiteral("finish nothing"),
                                 QStringLiteral("begin b.png"), QStringLiteral("finish b.png")}));
    EXPECT_EQ(unsaved(), QStringList(QStringLiteral("a.png")));
    EXPECT_EQ(contentOf(path(QStringLiteral("a.png"))), foreign);

    documents->saveCopy(failures.front().document, path(QStringLiteral("kept.png")));
    settle();
    EXPECT_EQ(QImage(path(QStringLiteral("kept.png"))).size(), QSize(80, 60));
    EXPECT_EQ(unsaved(), QStringList(QStringLiteral("a.png")));
    EXPECT_EQ(failures.size(), 1);
}

TEST_F(EditorDocumentFilesTest, renamesWithUnsavedEdits) {
    draw();
    const QUuid drawn = edits().annotations().front().id;
    edits().setSelectedIDs({drawn});
    int successes = 0;
    documents->rename(QStringLiteral(" z "), count(successes));
    settle();
    EXPECT_EQ(successes, 1);
    EXPECT_EQ(documents->name(), QStringLiteral("z"));
    EXPECT_EQ(told, QStringList({QStringLiteral("begin a.png"), QStringLiteral("finish z.png")}));
    EXPECT_EQ(files(), QStringList(QStringLiteral("z.png")));
    EXPECT_EQ(unsaved(), QStringList(QStringLiteral("z.png")));
    EXPECT_EQ(edits().selectedIDs(), QSet<QUuid>({drawn}));
    EXPECT_EQ(documents->current()->shot().location, path(QStringLiteral("z.png")));

    documents->rename(QStringLiteral("z"), count(successes));
    EXPECT_EQ(successes, 2);
    EXPECT_EQ(told.size(), 2) << "it has that name";

    // One after the other.
    documents->checkFile();
    documents->save(count(successes));
    documents->rename(QStringLiteral("y"), count(successes));
    documents->checkFile();
    settle();
    EXPECT_EQ(successes, 4);
    EXPECT_EQ(files(), QStringList(QStringLiteral("y.png")));
    EXPECT_TRUE(documents->canClose());
    EXPECT_EQ(told.size(), 6);
}

TEST_F(EditorDocumentFilesTest, offersToKeepBothWhenTheNameIsTaken) {
    static_cast<void>(shot(QStringLiteral("b.png")));
    documents->rename(QStringLiteral("b"));
    settle();
    ASSERT_EQ(failures.size(), 1);
    EXPECT_EQ(failures.front().offer, Offer::keepBoth);
    EXPECT_EQ(failures.front().wantedName, QStringLiteral("b"));
    EXPECT_EQ(told.back(), QStringLiteral("finish nothing"));
    documents->renameKeepingBoth(failures.front().document, failures.front().wantedName);
    settle();
    EXPECT_EQ(documents->name(), QStringLiteral("b copy"));

    documents->rename(QStringLiteral("a/b"));
    settle();
    EXPECT_EQ(failures.back().error, ScreenshotEditError::of(ScreenshotEditError::forbiddenName));
    EXPECT_EQ(failures.back().offer, Offer::none);
    EXPECT_EQ(files(), QStringList({QStringLiteral("b copy.png"), QStringLiteral("b.png")}));
}

TEST_F(EditorDocumentFilesTest, finishesWhatIsUnderWayForADocumentThatIsLeftOrGivenUp) {
    documents->rename(QStringLiteral("z"));
    documents->open(shot(QStringLiteral("b.png")), {});
    settle();
    EXPECT_EQ(told.back(), QStringLiteral("finish z.png"));
    draw();
    documents->save();
    documents->discardAll();
    settle();
    EXPECT_EQ(told.back(), QStringLiteral("finish b.png"));
    EXPECT_TRUE(store.store.badges().contains(shot(QStringLiteral("b.png")).identity));
    EXPECT_TRUE(documents->canClose());
}

} // namespace
} // namespace tembra
