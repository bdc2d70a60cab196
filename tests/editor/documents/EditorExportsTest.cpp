#include "OpenDocuments.h"
#include "editor/model/ScreenshotRenderer.h"
#include "support/Pixels.h"

#include <QFileInfo>
#include <QImageReader>

#include <sys/stat.h>

namespace tembra {
namespace {

class EditorExportsTest : public OpenDocuments {
protected:
    // Of the document, as it would be saved.
    [[nodiscard]] QImage rendered() {
        return pixelsOf(*ScreenshotRenderer::render(documents->current()->loaded.original,
                                                    edits().annotations(), edits().cropRect()));
    }
    Result<QString> saveCopy(const QString &name) {
        Result<QString> outcome;
        documents->saveCopy(path(name), [&](const Result<QString> &saved) { outcome = saved; });
        settle();
        return outcome.map([](const QString &saved) { return nameOf(saved); });
    }
    [[nodiscard]] QStringList dragged() const {
        return QDir(path(QStringLiteral("copies"))).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    }
    EditorDraggedImage drag() {
        EditorDraggedImage image;
        documents->dragImage([&](const Result<EditorDraggedImage> &result) { image = *result; });
        settle();
        return image;
    }
};

TEST_F(EditorExportsTest, savesCopiesInTheTypeOfTheirNames) {
    draw();
    edits().applyCrop(QRectF(10, 10, 40, 30));
    ::chmod(QFile::encodeName(path(QStringLiteral("a.png"))).constData(), 0640);
    struct Case {
        QString name, saved, format;
    };
    for (const Case &one :
         {Case{u"one.png"_qs, u"one.png"_qs, u"png"_qs}, Case{u"two.JPEG"_qs, u"two.JPEG"_qs, u"jpeg"_qs},
          Case{u"three"_qs, u"three.png"_qs, u"png"_qs},
          Case{u"four.gif"_qs, u"four.gif.png"_qs, u"png"_qs}}) {
        EXPECT_EQ(saveCopy(one.name), one.saved);
        EXPECT_EQ(QImageReader::imageFormat(path(one.saved)), one.format.toLatin1());
        EXPECT_EQ(QImage(path(one.saved)).size(), QSize(40, 30));
        EXPECT_EQ(told.back(), u"finish "_qs + one.saved);
    }
    EXPECT_EQ(pixelsOf(contentOf(path(QStringLiteral("one.png")))), rendered());
    EXPECT_EQ(QFileInfo(path(QStringLiteral("one.png"))).permissions() & 0x7777,
              QFileInfo(path(QStringLiteral("a.png"))).permissions() & 0x7777);
    EXPECT_EQ(files().size(), 5) << "nothing is left beside them";
    EXPECT_EQ(unsaved(), QStringList(QStringLiteral("a.png")));
    EXPECT_TRUE(failures.empty());
}

TEST_F(EditorExportsTest, replacesOnlyWhatTheUserAgreedTo) {
    draw();
    writeFile(path(QStringLiteral("there.png")));
    writeFile(path(QStringLiteral("target")));
    QFile::link(path(QStringLiteral("target")), path(QStringLiteral("link.png")));
    EXPECT_EQ(saveCopy(QStringLiteral("there.png")), QStringLiteral("there.png"));
    EXPECT_EQ(pixelsOf(contentOf(path(QStringLiteral("there.png")))), rendered());

    writeFile(path(QStringLiteral("there.png")));
    for (const QString &name : {u"there"_qs, u"link.png"_qs, u"nowhere/copy.png"_qs}) {
        EXPECT_FALSE(saveCopy(name));
        EXPECT_FALSE(failures.back().error.message.isEmpty());
        EXPECT_EQ(failures.back().offer, Offer::none);
        EXPECT_EQ(told.back(), QStringLiteral("finish nothing"));
    }
    EXPECT_EQ(contentOf(path(QStringLiteral("there.png"))), QByteArrayLiteral("x"));
    EXPECT_EQ(contentOf(path(QStringLiteral("target"))), QByteArrayLiteral("x"));
    EXPECT_EQ(files(), QStringList({QStringLiteral("a.png"), QStringLiteral("link.png"),
                                    QStringLiteral("target"), QStringLiteral("there.png")}));
}

TEST_F(EditorExportsTest, neverWritesACopyOverItsScreenshot) {
    const QByteArray before = contentOf(path(QStringLiteral("a.png")));
    draw();
    QFile::link(path({}), path(QStringLiteral("alias")));
    EXPECT_FALSE(saveCopy(QStringLiteral("alias/a.png")));
    EXPECT_EQ(contentOf(path(QStringLiteral("a.png"))), before);

    EXPECT_EQ(saveCopy(QStringLiteral("a.png")), QStringLiteral("a.png")) << "that is to save it";
    EXPECT_TRUE(documents->canClose());
    EXPECT_EQ(edits().savedRecord().annotations.size(), 1);
}

TEST_F(EditorExportsTest, savesACopyOfWhatIsGone) {
    draw();
    QFile::remove(path(QStringLiteral("a.png")));
    EXPECT_EQ(saveCopy(QStringLiteral("kept.png")), QStringLiteral("kept.png"));
    EXPECT_EQ(pixelsOf(contentOf(path(QStringLiteral("kept.png")))), rendered());
}

TEST_F(EditorExportsTest, copiesTheImageAsItIsWhenThatIsAskedFor) {
    draw();
    const QImage asked = rendered();
    int copied = 0;
    documents->copyImage([&](const Result<void> &result) { copied += result.has_value() ? 1 : 0; });
    draw(Kind::ellipse);
    EXPECT_FALSE(copied);
    settle();
    ASSERT_EQ(copied, 1);
    EXPECT_EQ(pixelsOf(pasteboard.items.front().data), asked);
    EXPECT_EQ(nameOf(pasteboard.items.front().path), QStringLiteral("a.png"));

    documents->copyImage();
    settle();
    EXPECT_EQ(pixelsOf(pasteboard.items.front().data), rendered());
    pasteboard.refuses = true;
    documents->copyImage();
    settle();
    EXPECT_EQ(failures.size(), 1);
}

TEST_F(EditorExportsTest, rendersOnlyWhatIsNotKnownYet) {
    draw();
    documents->save();
    settle();
    documents->copyImage();
    EXPECT_EQ(images.count(), 0) << "that was saved";
    settle();
    EXPECT_EQ(pasteboard.items.front().data, contentOf(path(QStringLiteral("a.png"))));
    draw(Kind::ellipse);
    for (const int jobs : {1, 0}) {
        documents->copyImage();
        EXPECT_EQ(images.count(), jobs);
        settle();
    }
    open(QStringLiteral("b.png"));
    documents->copyImage();
    EXPECT_EQ(images.count(), 1);
}

TEST_F(EditorExportsTest, keepsFilesThatWereDraggedForAWhile) {
    draw();
    const EditorDraggedImage first = drag();
    EXPECT_EQ(pixelsOf(first.png), rendered());
    EXPECT_EQ(contentOf(first.file), first.png);
    EXPECT_EQ(nameOf(first.file), QStringLiteral("a.png"));
    drag();
    EXPECT_TRUE(QFile::exists(first.file)) << "it may not have been read yet";
    for (int drags = 0; drags < 8; ++drags)
        drag();
    settle();
    EXPECT_FALSE(QFile::exists(first.file));
    EXPECT_EQ(dragged().size(), 8);
    {
        EditorImageCopies others(path(QStringLiteral("copies")),
                                 {pasteboard, *platform.fileCoordinator, store.queue, store.scheduler});
        others.prepareDrag(first.png, path(QStringLiteral("b.png")), [](const Result<QString> &) {});
        settle();
        EXPECT_EQ(dragged().size(), 9);
    }
    EXPECT_EQ(dragged().size(), 8) << "they end with the program";
}

} // namespace
} // namespace tembra
