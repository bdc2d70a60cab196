#include "shelf/FileItemCell.h"

#include "shelf/FileThumbnailCache.h"
#include "support/FakeFileFacts.h"
#include "support/FakeThumbnails.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using namespace tembra;

namespace {

const QString one = QStringLiteral("/shots/one.png");
const QString two = QStringLiteral("/shots/two.png");

FileFacts factsOf(std::uint64_t size, std::chrono::nanoseconds modifiedAt) {
    return {.kind = FileKind::regular, .modifiedAt = Instant(modifiedAt), .size = size};
}

QColor colorOf(const FileItemCell &cell) {
    return cell.image().isNull() ? QColor() : cell.image().pixelColor(0, 0);
}

} // namespace

class FileItemCellTest : public testing::Test {
protected:
    FileItemCellTest() {
        files.set(one, factsOf(10, 5s));
        files.set(two, factsOf(20, 6s));
    }

    FakeThumbnails thumbnails;
    FakeFileFacts files;
    FileThumbnailCache cache;
    FilePresentation presentation{thumbnails, files, cache};
    QWidget parent;
    FileItemCell cell{presentation, &parent};
};

TEST_F(FileItemCellTest, showsAnIconAtOnceAndThePictureWhenItIsMade) {
    const QImage empty = cell.grab().toImage();
    cell.configure(one, u"1"_s);
    const QImage icon = cell.grab().toImage();
    EXPECT_NE(icon, empty);
    EXPECT_TRUE(cell.image().isNull());
    EXPECT_EQ(cell.toolTip(), u"one.png"_s);
    ASSERT_TRUE(thumbnails.answer(one, Qt::green));
    EXPECT_TRUE(cell.isShowingThumbnail());
    EXPECT_EQ(colorOf(cell), QColor(Qt::green));
    EXPECT_NE(cell.grab().toImage(), icon);
}

TEST_F(FileItemCellTest, aCellThatIsUsedAgainNeverShowsThePictureOfTheFileBefore) {
    cell.configure(one, u"1"_s);
    cell.configure(two, u"1"_s);
    EXPECT_FALSE(thumbnails.answer(one)) << "its request was taken back";
    EXPECT_TRUE(cell.image().isNull());
    ASSERT_TRUE(thumbnails.answer(two, Qt::blue));
    EXPECT_EQ(colorOf(cell), QColor(Qt::blue));
    cell.prepareForReuse();
    EXPECT_TRUE(cell.image().isNull());
    EXPECT_FALSE(cell.isShowingThumbnail());
}

TEST_F(FileItemCellTest, dropsAPictureThatComesAfterItsRequestWasTakenBack) {
    struct Unstoppable final : Thumbnails {
        std::unique_ptr<Request> request(const QString &, double, double,
                                         std::function<void(Result<Thumbnail>)> onDone) override {
            answers.push_back(std::move(onDone));
            return std::make_unique<Request>();
        }
        std::vector<std::function<void(Result<Thumbnail>)>> answers;
    } unstoppable;
    QImage picture(4, 4, QImage::Format_RGB32);
    picture.fill(Qt::red);
    std::optional<FileItemCell> late(std::in_place, FilePresentation{unstoppable, files, cache}, &parent);
    late->configure(one, u"1"_s);
    late->configure(two, u"1"_s);
    ASSERT_EQ(unstoppable.answers.size(), 2U);
    unstoppable.answers[0](Thumbnails::Thumbnail{picture, true});
    EXPECT_TRUE(late->image().isNull());
    late.reset();
    unstoppable.answers[1](Thumbnails::Thumbnail{picture, true});
    EXPECT_FALSE(cache.find(FileThumbnailCache::key(files, two, u"1"_s, cell.devicePixelRatioF())));
}

TEST_F(FileItemCellTest, keepsTheIconOfAFileThatVanishedOrThatCannotBePictured) {
    cell.configure(one, u"1"_s);
    files.remove(one);
    ASSERT_TRUE(thumbnails.answer(one));
    EXPECT_TRUE(cell.image().isNull());
    cell.configure(two, u"1"_s);
    ASSERT_TRUE(thumbnails.fail(two));
    EXPECT_TRUE(cell.image().isNull());
    cell.configure(two, u"1"_s);
    ASSERT_TRUE(thumbnails.answerWith(two, Thumbnails::Thumbnail{})) << "asked again";
    EXPECT_TRUE(cell.image().isNull());
    EXPECT_FALSE(cell.isShowingThumbnail());
}

TEST_F(FileItemCellTest, takesAKnownPictureFromTheCacheAndAsksAgainForAChangedFile) {
    cell.configure(one, u"1"_s);
    thumbnails.answer(one, Qt::green);
    FileItemCell other(presentation, &parent);
    other.configure(one, u"1"_s);
    EXPECT_EQ(colorOf(other), QColor(Qt::green));
    EXPECT_EQ(thumbnails.requestCount(), 1);

    files.set(one, factsOf(10, 7s));
    other.configure(one, u"1"_s, cell.image());
    EXPECT_EQ(colorOf(other), QColor(Qt::green)) << "the fallback";
    EXPECT_FALSE(other.isShowingThumbnail());
    ASSERT_TRUE(thumbnails.answer(one, Qt::blue));
    EXPECT_EQ(colorOf(other), QColor(Qt::blue));
}

TEST_F(FileItemCellTest, canShowItsOwnFileAnew) {
    cell.configure(one, u"1"_s);
    cell.configure(cell.path(), cell.revision(), cell.image());
    EXPECT_EQ(cell.path(), one);
    EXPECT_EQ(cell.revision(), u"1"_s);
    EXPECT_EQ(thumbnails.waiting(), QStringList{one});
}

TEST_F(FileItemCellTest, everyChangeOfAFileGivesAnotherKey) {
    const auto key = [&](const QString &revision, double scale) {
        return FileThumbnailCache::key(files, one, revision, scale);
    };
    QSet<QString> keys{key(u"1"_s, 1), key(u"2"_s, 1), key(u"1"_s, 2), key(u"1"_s, 1.25)};
    files.set(one, factsOf(11, 5s));
    keys += key(u"1"_s, 1);
    files.set(one, factsOf(10, 5s + 1us));
    keys += key(u"1"_s, 1);
    files.remove(one);
    keys += key(u"1"_s, 1);
    EXPECT_EQ(keys.size(), 7);
    EXPECT_EQ(key(u"1"_s, 2), one + u"|||1|2"_s) << "what is not known is left empty";
    files.set(one, factsOf(10, 5s));
    EXPECT_TRUE(keys.contains(key(u"1"_s, 1))) << "an unchanged file keeps its key";
}

TEST(FileThumbnailCache, keepsThe128PicturesUsedLast) {
    FileThumbnailCache cache;
    const auto insert = [&](int number) {
        cache.insert(QString::number(number), std::make_shared<const FileThumbnail>());
    };
    const auto has = [&](int number) { return cache.find(QString::number(number)) != nullptr; };
    for (int number = 0; number < 128; ++number)
        insert(number);
    EXPECT_TRUE(has(0)) << "and so used last";
    insert(128);
    EXPECT_TRUE(has(0));
    EXPECT_FALSE(has(1));
    EXPECT_TRUE(has(2));
    EXPECT_TRUE(has(128));
}
