#include "editor/SavedShot.h"
#include "editor/model/ScreenshotRenderer.h"
#include "imaging/PictureHeader.h"
#include "support/EditStore.h"
#include "support/FaultWalk.h"
#include "support/Files.h"

#include <QDir>
#include <QDirIterator>

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace tembra {
namespace {

// A first save writes the original besides, a later one replaces a record, and one after a first save that
// was cut off before its record was written settles that.
enum class Save { first, later, afterCut };

QByteArray contentOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray rendered(const std::vector<ScreenshotAnnotation> &annotations) {
    const QByteArray original = SavedShot::original();
    const PictureMetadata metadata = readPictureHeader(original)->metadata;
    return ScreenshotRenderer::render(original, annotations, {})
        .and_then([&](const QImage &image) {
            return ScreenshotRenderer::encode(image, QStringLiteral("public.png"), metadata);
        })
        .value_or(QByteArray());
}

class SaveFaultTest : public testing::TestWithParam<Save> {
protected:
    const bool isFirst = GetParam() == Save::first;
    const QByteArray oldContent = isFirst ? SavedShot::original() : rendered(SavedShot::oldAnnotations());
    const QByteArray newContent = rendered(SavedShot::newAnnotations());

    [[nodiscard]] QStringList prepare(const QString &folder) const {
        EditStore edits(folder);
        const QString shot = writeFile(edits.path(SavedShot::name), SavedShot::original());
        const auto loaded = isFirst ? Result<ScreenshotEditLoaded>() : edits.store.load(shot, {});
        if (!isFirst && !edits.store.save(*loaded, SavedShot::oldAnnotations(), {}))
            qFatal("cannot save");
        if (GetParam() == Save::afterCut)
            cut(edits, loaded->record);
        return {folder};
    }

    // Back to where the record was pending.
    static void cut(const EditStore &edits, const ScreenshotEditRecord &opened) {
        const QDir folder(
            edits.path(QStringLiteral("edits/") + opened.id.toString(QUuid::WithoutBraces).toUpper()));
        if (!QFile::rename(folder.filePath(QStringLiteral("record.json")),
                           folder.filePath(QStringLiteral("pending.json"))))
            qFatal("cannot cut the save");
        writeFile(folder.filePath(QStringLiteral("record.json")), opened.encode());
    }

    // The screenshot is the old one or the new one, and opening it finds the edits that made it.
    void check(const FaultWalk::Run &run) const {
        SCOPED_TRACE(run.description().constData());
        EditStore edits(run.folder);
        const QString shot = edits.path(SavedShot::name);
        const QByteArray content = contentOf(shot);
        const bool isNew = content == newContent;
        EXPECT_TRUE(isNew || content == oldContent);
        EXPECT_TRUE(isNew || run.wasKilled || run.exitCode != 0);
        EXPECT_TRUE(run.wasKilled || run.exitCode == 0 || run.wentWrong());

        const auto loaded = edits.store.load(shot, {});
        ASSERT_TRUE(loaded) << qPrintable(loaded.error().message);
        EXPECT_EQ(loaded->original, SavedShot::original());
        EXPECT_EQ(loaded->record.annotations, isNew     ? SavedShot::newAnnotations()
                                              : isFirst ? std::vector<ScreenshotAnnotation>()
                                                        : SavedShot::oldAnnotations());
        QDirIterator files(run.folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString name = QFileInfo(files.next()).fileName();
            const bool isLeftover =
                name == u"pending.json" || name.startsWith(QStringLiteral(".tembra-edit-"));
            EXPECT_FALSE(isLeftover) << qPrintable(name);
        }
        EXPECT_TRUE(edits.store.save(*loaded, SavedShot::newAnnotations(), {}));
        EXPECT_EQ(contentOf(shot), newContent);
    }
};

TEST_P(SaveFaultTest, leavesTheOldScreenshotOrTheNewOneWithItsRecord) {
    const FaultWalk walk{.program = QStringLiteral(TEMBRA_SAVE_STEPS),
                         .prepare = [this](const QString &folder) { return prepare(folder); },
                         .check = [this](const FaultWalk::Run &run) { check(run); }};
    EXPECT_GE(walk.walk({"kill-before", "kill-after", "ENOSPC", "EIO", "EACCES", "ENOSPC-always"}), 20);
}

std::string nameOf(const testing::TestParamInfo<Save> &save) {
    constexpr std::array names{"first", "later", "afterCut"};
    return names[static_cast<std::size_t>(save.param)];
}

INSTANTIATE_TEST_SUITE_P(Each, SaveFaultTest, testing::Values(Save::first, Save::later, Save::afterCut),
                         nameOf);

} // namespace
} // namespace tembra
