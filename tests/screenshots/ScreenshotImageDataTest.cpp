#include "screenshots/ScreenshotImageData.h"

#include "platform/linux/LinuxPictureDecoder.h"
#include "support/Files.h"
#include "support/Pictures.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace tembra;

namespace {

class ScreenshotImageDataTest : public testing::Test {
protected:
    [[nodiscard]] QString path(const char *name) const { return m_folder.filePath(QString::fromUtf8(name)); }
    [[nodiscard]] auto load(const QString &file) const { return ScreenshotImageData::load(file, m_decoder); }

    const QTemporaryDir m_folder;
    const LinuxPictureDecoder m_decoder;
};

} // namespace

TEST_F(ScreenshotImageDataTest, bytesOfPngAndTiffAreTakenAsTheyAreAndOthersBecomePng) {
    const struct {
        const char *name;
        const char *format;
        const char *type;
        bool isAsItIs;
    } cases[]{
        {"a.png", "png", "public.png", true},
        {"a.tiff", "tiff", "public.tiff", true},
        {"a.jpg", "jpg", "public.png", false},
        {"really a jpeg.png", "jpg", "public.png", false},
        {"really a png.jpg", "png", "public.png", true},
    };
    for (const auto &[name, format, type, isAsItIs] : cases) {
        const QByteArray bytes = pictureBytes(format);
        const auto loaded = load(writeFile(path(name), bytes));
        ASSERT_TRUE(loaded) << name;
        EXPECT_EQ(loaded->type, QString::fromUtf8(type)) << name;
        EXPECT_EQ(loaded->data == bytes, isAsItIs) << name;
        const QImage image = QImage::fromData(loaded->data, isAsItIs ? format : "png");
        EXPECT_EQ(image, QImage::fromData(bytes, format).convertedTo(image.format())) << name;
    }
}

TEST_F(ScreenshotImageDataTest, aHeicPictureBecomesPng) {
    const QString encoder = QStandardPaths::findExecutable(QStringLiteral("heif-enc"));
    const QString picture = writeFile(path("a.png"), pictureBytes("png"));
    if (encoder.isEmpty() || QProcess::execute(encoder, {picture, QStringLiteral("-o"), path("a.heic")}) != 0)
        GTEST_SKIP() << "heif-enc is needed";
    const auto loaded = load(path("a.heic"));
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->type, QStringLiteral("public.png"));
    EXPECT_EQ(QImage::fromData(loaded->data, "png").size(), QSize(64, 48));
}

TEST_F(ScreenshotImageDataTest, whatCannotBeReadGivesNothing) {
    writeFile(path("empty.png"), "");
    writeFile(path("text.png"), "no picture");
    writeFile(path("broken.jpg"), pictureBytes("jpg").first(30));
    for (const char *name : {"none.png", "empty.png", "text.png", "broken.jpg", "."})
        EXPECT_FALSE(load(path(name))) << name;
}
