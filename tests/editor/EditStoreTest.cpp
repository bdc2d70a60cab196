#include "support/EditStore.h"

#include "base/FilePath.h"
#include "imaging/Sha256.h"
#include "settings/CocoaError.h"
#include "support/Annotations.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/Pixels.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <limits>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace tembra {
namespace {

using Kind = ScreenshotAnnotation::Kind;

QByteArray contentOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

int modeOf(const QString &path) {
    struct stat status {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0
               ? static_cast<int>(status.st_mode & 07777U)
               : -1;
}

// The disk fails for the files whose paths end so.
class FailingReads final : public FileCoordinator {
public:
    explicit FailingReads(const FileCoordinator &files) : m_files(files) {}

    QString failing;

    [[nodiscard]] Result<QByteArray> read(const QString &path) const override {
        return path.endsWith(failing) ? failure({posixErrorDomain, EIO, {}, {}}) : m_files.read(path);
    }
    [[nodiscard]] Result<void> makePrivateFolder(const QString &path) const override {
        return m_files.makePrivateFolder(path);
    }
    [[nodiscard]] Result<void> writeAtomically(const QString &path, QByteArrayView bytes) const override {
        return m_files.writeAtomically(path, bytes);
    }
    [[nodiscard]] Result<void> remove(const QString &path) const override { return m_files.remove(path); }
    [[nodiscard]] Result<void> writeTemporary(const QString &path, QByteArrayView bytes, const QString &like,
                                              const std::optional<Instant> &createdAt) const override {
        return m_files.writeTemporary(path, bytes, like, createdAt);
    }
    [[nodiscard]] Result<void> replace(const QString &path, const QString &temporary, QByteArrayView bytes,
                                       const ContentCheck &isExpected) const override {
        return m_files.replace(path, temporary, bytes, isExpected);
    }
    [[nodiscard]] Result<void> clearTemporary(const QString &path, const QString &temporary,
                                              const ContentCheck &isKnown) const override {
        return m_files.clearTemporary(path, temporary, isKnown);
    }
    [[nodiscard]] Result<void> moveIfUnchanged(const QString &from, const QString &to,
                                               const ContentCheck &isExpected) const override {
        return m_files.moveIfUnchanged(from, to, isExpected);
    }

private:
    const FileCoordinator &m_files;
};

class EditStoreTest : public testing::Test {
protected:
    const QTemporaryDir folder;
    EditStore edits{folder.path()};
    ScreenshotEditStore &store = edits.store;
    const QByteArray picture = pictureBytes("png", QSize(120, 90));
    const QString shot = writeFile(edits.path(QStringLiteral("shot.png")), picture);

    ScreenshotEditLoaded load(const QString &path) {
        auto loaded = store.load(path, {});
        if (!loaded)
            throw std::runtime_error(loaded.error().message.toStdString());
        return *loaded;
    }
    ScreenshotEditSaved save(const ScreenshotEditLoaded &loaded,
                             const std::vector<ScreenshotAnnotation> &annotations,
                             const std::optional<QRectF> &crop = {}) {
        auto saved = store.save(loaded, annotations, crop);
        if (!saved)
            throw std::runtime_error(saved.error().message.toStdString());
        return *saved;
    }
    [[nodiscard]] QString recordFolder(const ScreenshotEditLoaded &loaded) const {
        return edits.path(QStringLiteral("edits/")) +
               loaded.record.id.toString(QUuid::WithoutBraces).toUpper();
    }
    [[nodiscard]] QStringList besideShot() const {
        return QDir(edits.path({})).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    // The sentence with which a load fails; empty when it does not.
    [[nodiscard]] QString failureOfLoading(const QString &path) {
        const auto loaded = store.load(path, {});
        return loaded ? QString() : loaded.error().message;
    }
};

const std::vector<ScreenshotAnnotation> arrow{annotationOfKind(Kind::arrow)};
const QString changedBeforeOpening =
    QStringLiteral("This image changed outside Tembra. Make a copy to edit it as a new image.");

TEST_F(EditStoreTest, keepsTheOriginalAndTheEditsThroughSaves) {
    ::chmod(QFile::encodeName(shot).constData(), 0640);
    const auto loaded = load(shot);
    EXPECT_EQ(loaded.size, QSize(120, 90));
    EXPECT_EQ(loaded.preview.size(), QSize(120, 90));
    EXPECT_EQ(loaded.type, QStringLiteral("public.png"));
    EXPECT_FALSE(QFile::exists(recordFolder(loaded) + QStringLiteral("/original")));

    const auto first = save(loaded, arrow);
    EXPECT_NE(contentOf(shot), picture);
    EXPECT_EQ(first.clipboardPNG, contentOf(shot));
    EXPECT_EQ(first.record.fingerprint, sha256Hex(contentOf(shot)));
    const auto second = save(first.loaded, arrow, QRectF(10, 10, 50, 40));
    EXPECT_EQ(QImage(shot).size(), QSize(50, 40));

    EXPECT_EQ(contentOf(recordFolder(loaded) + QStringLiteral("/original")), picture);
    EXPECT_EQ(modeOf(shot), 0640);
    EXPECT_EQ(edits.services().files.facts(shot)->createdAt, loaded.createdAt);
    EXPECT_EQ(besideShot(), QStringList(QStringLiteral("shot.png")));
    EXPECT_EQ(QDir(recordFolder(loaded)).entryList(QDir::Files | QDir::Hidden, QDir::Name),
              QStringList({QStringLiteral("original"), QStringLiteral("record.json")}));

    const auto again = load(shot);
    EXPECT_EQ(again.record, second.record);
    EXPECT_EQ(again.original, picture);
    EXPECT_EQ(again.record.cropRect, QRectF(10, 10, 50, 40));
    // Taking everything back gives the original's pixels.
    save(again, {});
    EXPECT_EQ(pixelsOf(contentOf(shot)), pixelsOf(picture));
}

TEST_F(EditStoreTest, savesTurnedJpegsUprightAndAsTheyAre) {
    const QString photo = edits.path(QStringLiteral("photo.jpg"));
    {
        QImageWriter writer(photo, "jpg");
        writer.setTransformation(QImageIOHandler::TransformationRotate90);
        ASSERT_TRUE(writer.write(QImage::fromData(picture)));
    }
    const auto loaded = load(photo);
    EXPECT_EQ(loaded.size, QSize(90, 120));
    EXPECT_EQ(loaded.type, QStringLiteral("public.jpeg"));
    const auto saved = save(loaded, arrow);
    const QImageReader reader(photo);
    EXPECT_EQ(reader.format(), "jpeg");
    EXPECT_EQ(reader.transformation(), QImageIOHandler::TransformationNone);
    EXPECT_EQ(reader.size(), QSize(90, 120));
    const QImage copied = QImage::fromData(*saved.clipboardPNG, "png");
    EXPECT_EQ(copied.size(), QSize(90, 120));
    EXPECT_EQ(load(photo).size, QSize(90, 120));
}

TEST_F(EditStoreTest, isReadableByItsOwnerAlone) {
    const auto saved = save(load(shot), arrow);
    for (const auto &entry :
         std::filesystem::recursive_directory_iterator(edits.path(QStringLiteral("edits")).toStdString()))
        EXPECT_EQ(modeOf(QString::fromStdString(entry.path())), entry.is_directory() ? 0700 : 0600)
            << entry.path();
    EXPECT_EQ(modeOf(edits.path(QStringLiteral("edits"))), 0700);
}

TEST_F(EditStoreTest, refusesWhatItCannotEdit) {
    const QString link = edits.path(QStringLiteral("link.png"));
    ASSERT_TRUE(QFile::link(shot, link));
    const QString unsupported = QStringLiteral("The editor currently supports PNG and JPEG images.");
    const QString unreadable = QStringLiteral("This image couldn’t be opened.");
    const std::pair<QString, QString> cases[]{
        {link, QStringLiteral("This file can’t be edited.")},
        {edits.path({}), QStringLiteral("This file can’t be edited.")},
        {writeFile(edits.path(QStringLiteral("a.tiff")), pictureBytes("tiff")), unsupported},
        {writeFile(edits.path(QStringLiteral("text.png")), "no picture"), unsupported},
        {writeFile(edits.path(QStringLiteral("empty.png")), ""), unsupported},
        {writeFile(edits.path(QStringLiteral("torn.png")), picture.first(picture.size() / 2)), unreadable},
    };
    for (const auto &[path, sentence] : cases)
        EXPECT_EQ(failureOfLoading(path), sentence) << path.toStdString();
    EXPECT_FALSE(failureOfLoading(edits.path(QStringLiteral("missing.png"))).isEmpty());
    EXPECT_FALSE(QDir(edits.path(QStringLiteral("edits"))).exists())
        << "what is refused leaves nothing behind";
}

TEST_F(EditStoreTest, neverWritesOverWhatAnotherProgramWrote) {
    const auto saved = save(load(shot), arrow);
    const QByteArray foreign = pictureBytes("png", QSize(30, 30));
    writeFile(shot, foreign);
    const auto refused = store.save(saved.loaded, {}, {});
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error().message,
              QStringLiteral("This image changed outside Tembra. Your edits are still "
                             "here. Use Save a copy to keep them."));
    EXPECT_EQ(contentOf(shot), foreign);
    EXPECT_EQ(besideShot(), QStringList(QStringLiteral("shot.png")));
    EXPECT_EQ(failureOfLoading(shot), changedBeforeOpening);

    // The edited version comes back, and its edits with it.
    writeFile(shot, *saved.clipboardPNG);
    EXPECT_EQ(load(shot).record.annotations, arrow);
    QFile::remove(shot);
    EXPECT_FALSE(store.save(saved.loaded, {}, {}));
    EXPECT_FALSE(QFile::exists(shot));
}

TEST_F(EditStoreTest, whatWasOnlyOpenedMayChange) {
    const auto first = load(shot);
    writeFile(shot, pictureBytes("png", QSize(30, 30)));
    const auto second = load(shot);
    EXPECT_EQ(second.size, QSize(30, 30));
    EXPECT_EQ(second.record.id, first.record.id) << "no record more";
    EXPECT_EQ(load(shot).expectedHash, second.expectedHash);

    // A save from before the change keeps nothing that the next edit could start from.
    EXPECT_FALSE(store.save(first, arrow, {}));
    const auto third = load(shot);
    EXPECT_EQ(third.original, contentOf(shot));
    save(third, arrow);
    EXPECT_EQ(load(shot).size, QSize(30, 30));
}

TEST_F(EditStoreTest, savesNothingIntoTheTrash) {
    const auto loaded = load(shot);
    const QString trash = edits.path(QStringLiteral(".local/share/Trash/files"));
    QDir().mkpath(trash);
    ASSERT_TRUE(QFile::rename(shot, trash + QStringLiteral("/shot.png")));
    const auto refused = store.save(loaded, arrow, {});
    ASSERT_FALSE(refused);
    EXPECT_TRUE(refused.error().message.contains(QStringLiteral("Your edits are still here.")))
        << refused.error().message.toStdString();
    EXPECT_EQ(contentOf(trash + QStringLiteral("/shot.png")), picture);
}

TEST_F(EditStoreTest, savesFilesThatMayOnlyBeReadAndFilesOfAnyName) {
    const QByteArray odd = QFile::encodeName(edits.path(QStringLiteral("odd "))) + "\xfc.png";
    ASSERT_EQ(std::rename(QFile::encodeName(shot).constData(), odd.constData()), 0);
    ::setxattr(odd.constData(), "user.note", "1", 1, 0);
    ::chmod(odd.constData(), 0444);
    const auto first = load(pathFromBytes(odd));
    const auto saved = save(first, arrow);
    EXPECT_EQ(saved.path, pathFromBytes(odd));
    const auto again = load(pathFromBytes(odd));
    EXPECT_EQ(again.record.id, saved.record.id);
    EXPECT_EQ(again.record.annotations, arrow);
    EXPECT_EQ(again.createdAt, first.createdAt);
    char note = 0;
    EXPECT_EQ(::getxattr(odd.constData(), "user.note", &note, 1), 1);
    ::unlink(odd.constData());
}

TEST_F(EditStoreTest, refusesToSaveWhatItCouldNotOpenAgain) {
    ScreenshotAnnotation broken = arrow.front();
    broken.width = std::numeric_limits<double>::quiet_NaN();
    const auto refused = store.save(load(shot), {broken}, {});
    ASSERT_FALSE(refused);
    EXPECT_EQ(contentOf(shot), picture);
    EXPECT_TRUE(load(shot).record.annotations.empty());
}

TEST_F(EditStoreTest, followsMovesButTakesCopiesForNewImages) {
    const auto loaded = load(shot);
    const auto saved = save(loaded, arrow);
    const QString moved = edits.path(QStringLiteral("moved.png"));
    const QString copy = edits.path(QStringLiteral("copy.png"));
    ASSERT_TRUE(QFile::copy(shot, copy));
    ASSERT_TRUE(QFile::rename(shot, moved));
    EXPECT_EQ(load(moved).record.id, saved.record.id);
    const auto copied = load(copy);
    EXPECT_NE(copied.record.id, saved.record.id);
    EXPECT_TRUE(copied.record.annotations.empty());
    // A save finds the file where it has gone.
    const auto again = save(saved.loaded, arrow);
    EXPECT_EQ(again.path, moved);
    EXPECT_EQ(load(moved).record, again.record);

    // Moved after a save whose record was not written any more.
    const QString record = recordFolder(again.loaded) + QStringLiteral("/record.json");
    ASSERT_TRUE(QFile::rename(record, recordFolder(again.loaded) + QStringLiteral("/pending.json")));
    writeFile(record,
              ScreenshotEditRecord{.id = again.record.id, .path = moved, .fingerprint = loaded.expectedHash}
                  .encode());
    const QString elsewhere = edits.path(QStringLiteral("elsewhere.png"));
    ASSERT_TRUE(QFile::rename(moved, elsewhere));
    EXPECT_EQ(load(elsewhere).record.annotations, arrow);
}

// Each a change of a saved record, and what opening the screenshot says then.
TEST_F(EditStoreTest, reportsRecordsThatItCannotOpenAndLeavesThemAlone) {
    const auto saved = save(load(shot), {annotationOfKind(Kind::number)}, QRectF(0, 0, 20, 20));
    const QString file = recordFolder(saved.loaded) + QStringLiteral("/record.json");
    const QByteArray whole = contentOf(file);
    const QString annotation = QStringLiteral("This annotation couldn’t be opened.");
    const std::tuple<const char *, const char *, QString> changes[]{
        {"\"schema\": 2", "\"schema\": 3", annotation},
        {"\"kind\": \"number\"", "\"kind\": \"stamp\"", annotation},
        {"\"value\": 1", "\"value\": 0", annotation},
        {"\"width\": 20.0", "\"width\": 20.5", QStringLiteral("This crop couldn’t be opened.")},
        {"\"width\": 20.0", "\"width\": 2000.0", QStringLiteral("This crop couldn’t be opened.")},
    };
    for (const auto &[from, to, sentence] : changes) {
        QByteArray changed = whole;
        changed.replace(from, to);
        ASSERT_NE(changed, whole);
        writeFile(file, changed);
        EXPECT_EQ(failureOfLoading(shot), sentence) << to;
        EXPECT_EQ(contentOf(file), changed);
    }
    writeFile(file, whole);
    const QString original = recordFolder(saved.loaded) + QStringLiteral("/original");
    for (const auto &damage : {std::function([&] { writeFile(original, picture.first(20)); }),
                               std::function([&] { QFile::remove(original); })}) {
        damage();
        EXPECT_EQ(failureOfLoading(shot), QStringLiteral("The original image couldn’t be opened."));
    }
}

TEST_F(EditStoreTest, losesNoEditsWhileTheDiskDoesNotGiveThemOut) {
    const auto saved = save(load(shot), arrow);
    const QByteArray drawn = contentOf(shot);
    const auto services = edits.services();
    FailingReads files(services.coordinator);
    ScreenshotEditStore failing(edits.path(QStringLiteral("edits")), {.files = services.files,
                                                                      .bookmarks = services.bookmarks,
                                                                      .references = services.references,
                                                                      .coordinator = files,
                                                                      .thumbnails = services.thumbnails,
                                                                      .queue = services.queue,
                                                                      .scheduler = services.scheduler});
    for (const char *name : {"/record.json", "/pending.json"}) {
        files.failing = QString::fromUtf8(name);
        const auto loaded = failing.load(shot, {});
        ASSERT_FALSE(loaded) << name;
        EXPECT_EQ(loaded.error().code, EIO) << name;
        EXPECT_FALSE(failing.save(saved.loaded, {}, {})) << name;
        EXPECT_EQ(contentOf(shot), drawn) << name;
    }
    EXPECT_EQ(load(shot).record.annotations, arrow);
}

TEST_F(EditStoreTest, renamesWithinTheFolderAndKeepsTheExtension) {
    const auto saved = save(load(shot), arrow);
    const auto sentence = [&](const char *name) {
        const auto renamed = store.rename(saved.loaded, QString::fromUtf8(name));
        return renamed ? QString() : renamed.error().message;
    };
    EXPECT_EQ(sentence(" \n"), QStringLiteral("Enter a name for this screenshot."));
    for (const char *name : {"a/b", "x:y", ".hidden", "..", "a\tb"})
        EXPECT_EQ(sentence(name), QStringLiteral("Choose a name without slashes, colons or a leading dot."))
            << name;

    const auto renamed = store.rename(saved.loaded, QStringLiteral("  shot.png "));
    ASSERT_TRUE(renamed);
    EXPECT_EQ(renamed->path, edits.path(QStringLiteral("shot.png.png")));
    EXPECT_EQ(load(renamed->path).record, renamed->record);
    EXPECT_EQ(store.rename(*renamed, QStringLiteral("shot.png"))->path, renamed->path) << "the name it has";

    writeFile(edits.path(QStringLiteral("taken.png")));
    const auto collision = store.rename(*renamed, QStringLiteral("taken"));
    ASSERT_FALSE(collision);
    EXPECT_TRUE(ScreenshotEditStore::isNameCollision(collision.error()));
    auto kept = *renamed;
    for (const char *name : {"taken copy.png", "taken copy 1.png", "taken copy 2.png"}) {
        kept = *store.renameKeepingBoth(load(writeFile(edits.path(QStringLiteral("new.png")), picture)),
                                        QStringLiteral("taken"));
        EXPECT_EQ(QFileInfo(kept.path).fileName().toStdString(), name);
    }
    writeFile(kept.path, "other");
    EXPECT_EQ(store.rename(kept, QStringLiteral("new")).error().message,
              QStringLiteral("This image changed outside Tembra. Its name hasn’t been changed."));
}

TEST_F(EditStoreTest, knowsWhichScreenshotsCarryEdits) {
    const auto opened = load(writeFile(edits.path(QStringLiteral("other.png")), picture));
    const auto before = load(shot);
    const auto saved = save(before, arrow);
    store.updateBadge(saved.loaded, before.identity);
    EXPECT_EQ(store.badges().keys(), QList{saved.loaded.identity});

    ScreenshotEditStore later(edits.path(QStringLiteral("edits")), edits.services());
    bool isLoaded = false;
    later.loadBadges([&] { isLoaded = true; });
    edits.queue.runAll();
    edits.scheduler.settle();
    EXPECT_TRUE(isLoaded);
    EXPECT_EQ(later.badges(), store.badges());
    const auto reverted = save(saved.loaded, {});
    store.updateBadge(reverted.loaded, saved.loaded.identity);
    EXPECT_TRUE(store.badges().isEmpty());
}

} // namespace
} // namespace tembra
